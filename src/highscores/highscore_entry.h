// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUuid>
#include <cstdint>
#include <optional>
#include <vector>

/// What one finished game leaves behind: built once, complete, never edited.
///
/// The order of the fields is the order in the file. Numbers come from a file
/// that anyone may edit, so each may hold any 64-bit value; readers must cope.
struct HighscoreEntry {
    QUuid id{};                                      ///< Identity of the record; any UUID.
    QString gameMode{};                              ///< "solo" or "versus"; kept as read.
    QString playerName{};                            ///< The player, or the first of two.
    std::optional<QString> secondPlayerName{};       ///< Versus only.
    std::optional<QString> winnerName{};             ///< Versus only; absent on a draw.
    std::int64_t elapsedSeconds = 0;                 ///< Time of play in whole seconds.
    std::int64_t failedAttempts = 0;                 ///< Turned pairs that did not match.
    std::optional<std::int64_t> firstPlayerScore{};  ///< Versus only: pairs found.
    std::optional<std::int64_t> secondPlayerScore{}; ///< Versus only: pairs found.
    std::int64_t amountCards = 0;                    ///< Number of the card layout, 1 to 6.
    std::int64_t amountRounds = 0;                   ///< Rounds of the game, at least 1.
};

using HighscoreEntries = std::vector<HighscoreEntry>;

/// The values of `gameMode` that the game writes.
inline constexpr QLatin1String soloMode{"solo"};
inline constexpr QLatin1String versusMode{"versus"};

/// The winner's lead in pairs: 0 for a draw; an absent score counts as 0.
///
/// Unsigned, because the distance between two 64-bit scores can exceed the
/// signed range. Exact for every input; never fails.
[[nodiscard]] std::uint64_t scoreMargin(const HighscoreEntry& entry) noexcept;
