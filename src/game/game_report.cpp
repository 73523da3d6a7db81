// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// All stored results as a page for the browser.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "highscores/highscore_lists.h"
#include "highscores/html_report.h"
#include "platform/alerts.h"
#include "platform/atomic_file.h"
#include "platform/date_text.h"
#include "platform/localized_text.h"
#include "platform/platform.h"
#include "platform/within_memory.h"
#include "platform/workspace.h"

#include <cerrno>

void MemoryGame::openHighscoresHTML()
{
    const QString folder = highscoreFolderURL();
    // Without a folder there is no file to write, least of all one at the root.
    const QString file = folder.isEmpty() ? folder : folder + QStringLiteral("/highscores.html");
    std::optional<QString> failure;
    if (!withinMemory([&] {
            const QString page = buildHighscoresHTML(loadAllHighscoreEntries());
            failure = writeAtomically(file, page.toUtf8());
        }))
        failure = qt_error_string(ENOMEM);
    if (failure)
        platform().alerts.warn(localizedText("highscores_export_error_title"), *failure,
                               localizedText("ok"));
    else
        platform().workspace.openFile(file);
}

QString MemoryGame::buildHighscoresHTML(const HighscoreEntries& entries) const
{
    const GameFacts current = facts();
    const QString now = dateText(QDateTime::currentDateTime(), timeLocaleIdentifier());
    return buildReport(entries,
                       {.language = currentLocaleIdentifier().left(2),
                        .title = localizedText("highscores_html_title"),
                        // The first is a number that no language shows; its place is taken.
                        .subtitle = localizedText(
                            "highscores_html_subtitle",
                            {current.amountCards + 2, current.amountCards, current.amountRounds}),
                        .generated = localizedText("highscores_html_generated", {now}),
                        .playerColumn = localizedText("highscores_html_player"),
                        .timeColumn = localizedText("highscores_html_time"),
                        .failuresColumn = localizedText("highscores_html_failures"),
                        .cardsColumn = localizedText("highscores_html_cards"),
                        .roundsColumn = localizedText("highscores_html_rounds"),
                        .modeColumn = localizedText("highscores_html_mode"),
                        .soloMode = localizedText("highscores_mode_solo"),
                        .versusMode = localizedText("highscores_mode_versus"),
                        .secondPlayer = localizedText("player_two"),
                        .empty = localizedText("highscores_empty")});
}

QString MemoryGame::highscoreFolderURL() const
{
    return highscoreFolder();
}

HighscoreEntries MemoryGame::loadAllHighscoreEntries() const
{
    return inReportOrder(readHighscoreFile());
}
