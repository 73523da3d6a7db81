// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/highscore_section.h"

#include "game/memory_game.h"
#include "platform/clock_text.h"
#include "platform/localized_text.h"
#include "ui/elided_label.h"
#include "ui/fonts.h"

HighscoreSection::HighscoreSection(const MemoryGame& game, QWidget* column)
    : m_game(game)
    , m_times(makeList("best_times", "bestTimes", column))
    , m_failures(makeList("fewest_failed_attempts", "bestFailures", column))
    , m_versus(makeList("versus_mode", "bestVersus", column))
{
}

HighscoreSection::List HighscoreSection::makeList(const char* headingKey, const char* name,
                                                  QWidget* column)
{
    List list;
    const QString objectName = QString::fromLatin1(name);
    list.heading = new ElidedLabel(objectName + QStringLiteral("Heading"), column);
    list.heading->setText(localizedText(headingKey));
    list.heading->setFont(systemFont(13, QFont::DemiBold));
    m_rows.push_back(list.heading);
    for (std::size_t i = 0; i < list.lines.size(); ++i) {
        list.lines[i] = new ElidedLabel(objectName + QString::number(i + 1), column);
        list.lines[i]->setFont(monospacedFont(12));
        m_rows.push_back(list.lines[i]);
    }
    return list;
}

int HighscoreSection::paddingAbove(const ElidedLabel* row) const
{
    if (row == m_times.heading || row == m_versus.heading)
        return 12;
    return row == m_failures.heading ? 10 : 0;
}

void HighscoreSection::refresh()
{
    soloHighscoresSection(!m_game.isVersusMode());
    versusHighscoresSection(m_game.isVersusMode());
}

void HighscoreSection::soloHighscoresSection(bool isShown)
{
    fill(m_times, isShown, m_game.bestTimeScores(), [](std::size_t rank, const auto& entry) {
        return Line{
            localizedText("%1. %2 – %3", {rank, entry.playerName, clockText(entry.elapsedSeconds)}),
            {entry.playerName}};
    });
    fill(m_failures, isShown, m_game.bestFailureScores(), [](std::size_t rank, const auto& entry) {
        return Line{localizedText("%1. %2 – %3", {rank, entry.playerName, entry.failedAttempts}),
                    {entry.playerName}};
    });
}

void HighscoreSection::versusHighscoresSection(bool isShown)
{
    fill(m_versus, isShown, m_game.bestVersusScores(), [](std::size_t rank, const auto& entry) {
        const QString second = entry.secondPlayerName.value_or(localizedText("player_two"));
        return Line{localizedText("%1. %2 vs %3 – %4:%5", {rank, entry.playerName, second,
                                                           entry.firstPlayerScore.value_or(0),
                                                           entry.secondPlayerScore.value_or(0)}),
                    {entry.playerName, second}};
    });
}

void HighscoreSection::fill(const List& list, bool isShown, const HighscoreEntries& entries,
                            const LineOf& lineOf)
{
    list.heading->setVisible(isShown);
    for (std::size_t i = 0; i < list.lines.size(); ++i) {
        const bool hasEntry = isShown && i < entries.size();
        if (hasEntry) {
            const Line line = lineOf(i + 1, entries[i]);
            list.lines[i]->setText(line.text, line.names);
        }
        list.lines[i]->setVisible(hasEntry);
    }
}
