// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Shows warnings that the player has to dismiss. Needs no widgets to be called.
class Alerts {
public:
    virtual ~Alerts() = default;

    /// Shows a modal warning with one button and returns once it is dismissed.
    /// All texts are plain text; an empty `informativeText` shows none.
    virtual void warn(const QString& messageText, const QString& informativeText,
                      const QString& buttonTitle) = 0;
};
