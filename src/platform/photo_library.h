// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/photo_access.h"

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

/// One of the user's own albums.
struct PhotoAlbum {
    std::optional<QString> localizedTitle{}; ///< As it is, not trimmed.
    std::int64_t assetCount = 0;             ///< Pictures and films in it.
};

/// The user's photo library. No library is connected to the game so far: this
/// one is restricted and empty. Its derived classes have something to show.
class PhotoLibrary {
public:
    virtual ~PhotoLibrary() = default;

    /// The current status; never asks the user.
    [[nodiscard]] virtual PhotoAuthorization authorizationStatus() const
    {
        return PhotoAuthorization::restricted;
    }

    /// The user's albums, in the library's order. Titles may be equal.
    [[nodiscard]] virtual std::vector<PhotoAlbum> albums() const { return {}; }

    /// The name of the part that may be read under `limited`.
    [[nodiscard]] virtual QString limitedTo() const { return {}; }
};
