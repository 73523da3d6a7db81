// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How far the user lets the game look at personal photos.
enum class PhotoAuthorization {
    notDetermined = 0, ///< never asked
    restricted = 1,    ///< not to be had on this system, whatever the user says
    denied = 2,
    authorized = 3, ///< everything
    limited = 4,    ///< a part chosen by the user
};

/// Whether pictures may be read under `status`.
[[nodiscard]] constexpr bool allowsReading(PhotoAuthorization status) noexcept
{
    return status == PhotoAuthorization::authorized || status == PhotoAuthorization::limited;
}

/// The user's photo library.
class PhotoLibrary {
public:
    /// The current status; never asks the user. No library is connected to the
    /// game so far, hence nothing can be read.
    [[nodiscard]] PhotoAuthorization authorizationStatus() const
    {
        return PhotoAuthorization::restricted;
    }
};
