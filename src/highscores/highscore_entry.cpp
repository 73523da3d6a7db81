// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_entry.h"

std::uint64_t scoreMargin(const HighscoreEntry& entry) noexcept
{
    const std::int64_t first = entry.firstPlayerScore.value_or(0);
    const std::int64_t second = entry.secondPlayerScore.value_or(0);
    // Unsigned subtraction wraps to the exact distance.
    return first > second ? static_cast<std::uint64_t>(first) - static_cast<std::uint64_t>(second)
                          : static_cast<std::uint64_t>(second) - static_cast<std::uint64_t>(first);
}
