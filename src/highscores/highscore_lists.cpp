// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_lists.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

/// Sorts stably, ascending by `key`.
template <class Key>
HighscoreEntries sorted(HighscoreEntries entries, Key key)
{
    std::ranges::stable_sort(entries, std::ranges::less(), key);
    return entries;
}

template <class Key>
HighscoreEntries best(HighscoreEntries entries, std::size_t limit, Key key)
{
    entries = sorted(std::move(entries), key);
    entries.resize(std::min(entries.size(), limit));
    return entries;
}

} // namespace

HighscoreEntries entriesOf(const HighscoreEntries& entries, std::int64_t amountCards,
                           std::int64_t amountRounds, QLatin1String gameMode)
{
    HighscoreEntries kept;
    std::ranges::copy_if(entries, std::back_inserter(kept), [&](const HighscoreEntry& entry) {
        return entry.amountCards == amountCards && entry.amountRounds == amountRounds &&
               entry.gameMode == gameMode;
    });
    return kept;
}

HighscoreEntries rankByTime(HighscoreEntries entries, std::size_t limit)
{
    return best(std::move(entries), limit, [](const HighscoreEntry& entry) {
        return std::tuple(entry.elapsedSeconds, entry.failedAttempts);
    });
}

HighscoreEntries rankByFailures(HighscoreEntries entries, std::size_t limit)
{
    return best(std::move(entries), limit, [](const HighscoreEntry& entry) {
        return std::tuple(entry.failedAttempts, entry.elapsedSeconds);
    });
}

HighscoreEntries rankByMargin(HighscoreEntries entries, std::size_t limit)
{
    // The complement turns the largest lead into the smallest key.
    return best(std::move(entries), limit, [](const HighscoreEntry& entry) {
        return std::tuple(~scoreMargin(entry), entry.elapsedSeconds);
    });
}

HighscoreEntries inReportOrder(HighscoreEntries entries)
{
    return sorted(std::move(entries), [](const HighscoreEntry& entry) {
        return std::tuple(entry.amountCards, entry.amountRounds, entry.elapsedSeconds,
                          entry.failedAttempts);
    });
}
