// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "highscores/highscore_entry.h"

/// The records of one card layout, number of rounds and mode, in their order.
[[nodiscard]] HighscoreEntries entriesOf(const HighscoreEntries& entries, std::int64_t amountCards,
                                         std::int64_t amountRounds, QLatin1String gameMode);

/// The best `limit` by time, fewest failures next; ties keep their order.
[[nodiscard]] HighscoreEntries rankByTime(HighscoreEntries entries, std::size_t limit);

/// The best `limit` by failures, shortest time next; ties keep their order.
[[nodiscard]] HighscoreEntries rankByFailures(HighscoreEntries entries, std::size_t limit);

/// The best `limit` by the winner's lead, shortest time next; ties keep their order.
[[nodiscard]] HighscoreEntries rankByMargin(HighscoreEntries entries, std::size_t limit);

/// All records by layout, rounds, time and failures, each ascending; ties keep
/// their order.
[[nodiscard]] HighscoreEntries inReportOrder(HighscoreEntries entries);
