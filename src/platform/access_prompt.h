// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/photo_access.h"

#include <optional>

/// Asks the user how far the game may look at personal photos. Needs no widgets
/// to be called.
class AccessPrompt {
public:
    virtual ~AccessPrompt() = default;

    /// Asks once, modally, and returns when the question is gone.
    ///
    /// None where the user gave no answer: the photos stay closed for now, and the
    /// question open. Otherwise `denied`, `authorized`, or `limited` with a folder.
    [[nodiscard]] virtual std::optional<PhotoAccess> askForPhotoAccess() = 0;
};
