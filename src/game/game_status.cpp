// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/game_status.h"

#include "platform/notification_center.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "settings/settings_keys.h"

void publishGameStatus(bool isRunning)
{
    platform().defaults.setInteger(SettingsKeys::GameIsActive, isRunning ? 1 : 0);
    platform().notifications.post(gameStatusChanged);
}
