// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/rules/shuffle.h"

#include <QRandomGenerator>

namespace {

__extension__ using Uint128 = unsigned __int128;

} // namespace

std::uint64_t systemRandomWord()
{
    return QRandomGenerator::system()->generate64();
}

std::uint64_t boundedDraw(std::uint64_t bound, const RandomWords& nextWord)
{
    const std::uint64_t unevenRest = (0 - bound) % bound;
    while (true) {
        const Uint128 product = Uint128{nextWord()} * bound;
        if (static_cast<std::uint64_t>(product) >= unevenRest)
            return static_cast<std::uint64_t>(product >> 64);
    }
}
