// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_file.h"
#include "settings/settings_keys.h"
#include "stage/stage_platform.h"

/// Stores `count` results of each mode that are else like `result`, of one round and, if it
/// names none, the layout of the settings; the fastest have the most failures.
inline void writeResults(const StagePlatform& platform, int count, HighscoreEntry result = {})
{
    HighscoreEntries entries;
    if (result.amountCards == 0)
        result.amountCards = platform.defaults->integer(SettingsKeys::AmountCards);
    result.amountRounds = 1;
    for (int i = 0; i < count; ++i) {
        result.elapsedSeconds = 59 + i;
        result.failedAttempts = 20 - i;
        for (const QLatin1String mode : {soloMode, versusMode}) {
            result.gameMode = mode;
            entries.push_back(result);
        }
    }
    platform.writeHighscoreFile(encodeHighscores(entries));
}
