// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_entry.h"

#include <QString>

/// What the page says apart from the results: plain text in the player's
/// language. Everything is escaped by buildReport().
struct ReportTexts {
    QString language{}; ///< Language code of the page; the one text not escaped.
    QString title{};
    QString subtitle{};
    QString generated{}; ///< When the page was made.
    QString playerColumn{};
    QString timeColumn{};
    QString failuresColumn{};
    QString cardsColumn{};
    QString roundsColumn{};
    QString modeColumn{};
    QString soloMode{};     ///< Mode of every result but those of two players.
    QString versusMode{};   ///< Mode of a result of two players.
    QString secondPlayer{}; ///< Stands in for a second player without a name.
    QString empty{};        ///< The only row while there is no result.
};

/// The page of `entries`, in their order: one self-contained HTML document with
/// its style sheet and scripts, to be stored in UTF-8.
///
/// The fixed text comes from resources/report.html. Any entry will do: names are
/// shown letter by letter, whatever markup they hold, and never taken for a
/// place of the template.
[[nodiscard]] QString buildReport(const HighscoreEntries& entries, const ReportTexts& texts);
