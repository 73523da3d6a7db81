// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

/// A source of uniformly distributed 64-bit words.
using RandomWords = std::function<std::uint64_t()>;

/// The system's secure random source: not seeded, no sequence to repeat.
[[nodiscard]] std::uint64_t systemRandomWord();

/// A uniform draw from 0 to `bound` - 1; `bound` is at least 1.
///
/// Multiply and reject: the high word of word x bound is the draw; words whose
/// low word falls into the uneven rest, (2^64 - bound) mod bound, are redrawn.
/// Source: Lemire, "Fast Random Integer Generation in an Interval", 2019.
[[nodiscard]] std::uint64_t boundedDraw(std::uint64_t bound, const RandomWords& nextWord);

/// Puts `list` into a uniformly random order: Fisher–Yates from the front.
/// A list of fewer than two elements is left alone and draws nothing.
template <class List>
void shuffle(List& list, const RandomWords& nextWord = systemRandomWord)
{
    auto remaining = static_cast<std::uint64_t>(list.size());
    for (auto place = list.begin(); remaining > 1; ++place, --remaining) {
        const auto chosen = static_cast<std::ptrdiff_t>(boundedDraw(remaining, nextWord));
        std::swap(*place, *(place + chosen));
    }
}
