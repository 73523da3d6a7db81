// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Posted right after every write of the setting `GameIsActive`, except the one
/// when the program ends. Carries nothing: observers read the setting.
inline const QString gameStatusChanged = QStringLiteral("GameStatusChangedNotification");

/// Writes whether a game runs under `GameIsActive` and posts the notification.
void publishGameStatus(bool isRunning);
