// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a record holds, it is read back as it was.
#include "fuzz.h"
#include "highscores/highscore_file.h"
#include "records.h"

#include <algorithm>
#include <tuple>

namespace {

/// Texts as UTF-8 can keep them: without halves of surrogate pairs.
auto fieldsOf(const HighscoreEntry& entry)
{
    const auto kept = [](const std::optional<QString>& text) {
        return text ? std::optional(text->toUtf8()) : std::nullopt;
    };
    return std::tuple(entry.id, kept(entry.gameMode), kept(entry.playerName),
                      kept(entry.secondPlayerName), kept(entry.winnerName), entry.elapsedSeconds,
                      entry.failedAttempts, entry.firstPlayerScore, entry.secondPlayerScore,
                      entry.amountCards, entry.amountRounds);
}

} // namespace

void tryInput(const QByteArray& input)
{
    const HighscoreEntries entries = entriesFrom(Pieces(input));
    const auto readBack = decodeHighscores(encodeHighscores(entries));
    require(readBack.has_value(), "what is written can be read");
    require(std::ranges::equal(*readBack, entries, {}, fieldsOf, fieldsOf),
            "what is read is what was written");
}
