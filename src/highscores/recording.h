// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_entry.h"

/// What every record tells of its game.
struct GameFacts {
    std::int64_t elapsedSeconds = 0;
    std::int64_t failedAttempts = 0;
    int amountCards = 1;           ///< Number of the layout, 1 to 6.
    std::int64_t amountRounds = 1; ///< At least 1.
};

/// One player's part in a versus game.
struct VersusPlayer {
    QString name{};
    std::int64_t score = 0; ///< Pairs found.
};

/// The record of a one-player game, with an id of its own.
[[nodiscard]] HighscoreEntry soloEntry(const QString& playerName, const GameFacts& facts);

/// The record of a versus game, with an id of its own; the winner is whoever
/// found more pairs, nobody on a draw.
[[nodiscard]] HighscoreEntry versusEntry(const VersusPlayer& first, const VersusPlayer& second,
                                         const GameFacts& facts);
