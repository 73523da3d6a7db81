// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The stored results and the ranked lists that follow from them.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "highscores/highscore_lists.h"
#include "platform/debug_log.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "platform/within_memory.h"
#include "settings/settings_keys.h"

#include <QFile>

QString MemoryGame::highscoreFileURL() const
{
    return highscoreFile();
}

HighscoreEntries MemoryGame::readHighscoreFile() const
{
    return readHighscores(highscoreFileURL()).entries.value_or(HighscoreEntries());
}

void MemoryGame::appendHighscoreEntry(const HighscoreEntry& entry)
{
    const QString file = highscoreFileURL();
    // Where memory does not suffice for the text of all records, nothing is stored or shown.
    (void)withinMemory([&] {
        StoredHighscores stored = readHighscores(file);
        HighscoreEntries entries = std::move(stored.entries).value_or(HighscoreEntries());
        entries.push_back(entry);
        // A failed write is not reported; the lists show the record all the same.
        if (!stored.mustStay)
            (void)writeHighscores(file, entries);
        updateHighscoreLists(entries);
    });
}

void MemoryGame::updateHighscoreLists(const HighscoreEntries& entries)
{
    const GameFacts current = facts();
    HighscoreEntries kept = entriesOf(entries, current.amountCards, current.amountRounds,
                                      isVersusMode() ? versusMode : soloMode);
    if (isVersusMode()) {
        m_bestVersusScores = rankByMargin(std::move(kept), maxHighscoreEntries);
        m_bestTimeScores = HighscoreEntries();
        m_bestFailureScores = HighscoreEntries();
    } else {
        m_bestTimeScores = rankByTime(kept, maxHighscoreEntries);
        m_bestFailureScores = rankByFailures(std::move(kept), maxHighscoreEntries);
        m_bestVersusScores = HighscoreEntries();
    }
}

void MemoryGame::reloadHighscoresForCurrentSettings()
{
    if (!withinMemory([&] { updateHighscoreLists(readHighscoreFile()); }))
        updateHighscoreLists({});
}

void MemoryGame::resetHighscores()
{
    m_bestTimeScores = HighscoreEntries();
    m_bestFailureScores = HighscoreEntries();
    m_bestVersusScores = HighscoreEntries();

    QFile file(highscoreFileURL());
    if (!file.exists())
        return;
    const HighscoreEntries removed = readHighscoreFile();
    if (!file.remove()) {
        logLine(QStringLiteral("Fehler beim Zurücksetzen der Highscores: ") + file.errorString());
        return;
    }
    (void)withinMemory(
        [&] { m_removedEntries.insert(m_removedEntries.end(), removed.begin(), removed.end()); });
}

void MemoryGame::restoreHighscores()
{
    const QString file = highscoreFileURL();
    (void)withinMemory([&] {
        HighscoreEntries entries = m_removedEntries;
        const StoredHighscores present = readHighscores(file);
        if (present.entries)
            entries.insert(entries.end(), present.entries->begin(), present.entries->end());
        if (present.mustStay || !writeHighscores(file, entries))
            return;
        m_removedEntries.clear();
        updateHighscoreLists(entries);
    });
}

void MemoryGame::storeCurrentResult()
{
    appendHighscoreEntry(soloEntry(soloPlayerName(), facts()));
}

void MemoryGame::storeVersusResult()
{
    const auto [firstName, secondName] = playerNames();
    const auto [firstScore, secondScore] = playerScores();
    appendHighscoreEntry(versusEntry({firstName, firstScore}, {secondName, secondScore}, facts()));
}

GameFacts MemoryGame::facts() const
{
    return {.elapsedSeconds = elapsedSeconds(),
            .failedAttempts = failedAttempts(),
            .amountCards = cardLayoutNumber(platform().defaults.integer(SettingsKeys::AmountCards)),
            .amountRounds = totalRounds()};
}
