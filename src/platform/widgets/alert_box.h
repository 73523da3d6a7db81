// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/alerts.h"

/// Alerts as message boxes over the active window.
class AlertBox : public Alerts {
public:
    void warn(const QString& messageText, const QString& informativeText,
              const QString& buttonTitle) override;
};

/// Shows `text` under the heading `title` in a modal box with the program's icon
/// and one button; plain text.
void showInformation(const QString& title, const QString& text);
