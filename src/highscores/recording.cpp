// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/recording.h"

namespace {

HighscoreEntry entryFor(QLatin1String gameMode, const QString& playerName, const GameFacts& facts)
{
    HighscoreEntry entry;
    entry.id = QUuid::createUuid();
    entry.gameMode = gameMode;
    entry.playerName = playerName;
    entry.elapsedSeconds = facts.elapsedSeconds;
    entry.failedAttempts = facts.failedAttempts;
    entry.amountCards = facts.amountCards;
    entry.amountRounds = facts.amountRounds;
    return entry;
}

} // namespace

HighscoreEntry soloEntry(const QString& playerName, const GameFacts& facts)
{
    return entryFor(soloMode, playerName, facts);
}

HighscoreEntry versusEntry(const VersusPlayer& first, const VersusPlayer& second,
                           const GameFacts& facts)
{
    HighscoreEntry entry = entryFor(versusMode, first.name, facts);
    entry.secondPlayerName = second.name;
    entry.firstPlayerScore = first.score;
    entry.secondPlayerScore = second.score;
    if (first.score != second.score)
        entry.winnerName = first.score > second.score ? first.name : second.name;
    return entry;
}
