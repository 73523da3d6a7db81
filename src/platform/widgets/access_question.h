// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/access_prompt.h"

#include <QString>

/// Asks for access to the photos in a dialog over the active window.
///
/// Meanwhile the game stands still: the main queue is held, and the other windows
/// are disabled, since a screen reader can press what is only covered.
class AccessQuestion : public AccessPrompt {
public:
    /// The choice of a folder begins in `picturesFolder`.
    explicit AccessQuestion(QString picturesFolder);

    [[nodiscard]] std::optional<PhotoAccess> askForPhotoAccess() override;

private:
    QString m_picturesFolder;
};
