// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

/// One grid of cards and the window that it asks for, in points.
struct CardLayout {
    int columns = 0;
    int rows = 0;
    int windowWidth = 0;
    int windowHeight = 0;

    [[nodiscard]] constexpr int cards() const noexcept { return columns * rows; }
    [[nodiscard]] constexpr int pairs() const noexcept { return cards() / 2; }
};

/// Every layout there is, smallest first. No other code has a table of them; the name of
/// each is a text.
inline constexpr std::array cardLayouts = {
    CardLayout{4, 3, 1100, 700}, CardLayout{4, 4, 1150, 760}, CardLayout{5, 4, 1220, 760},
    CardLayout{6, 4, 1320, 760}, CardLayout{7, 4, 1420, 760}, CardLayout{8, 5, 1580, 900},
};
static_assert(std::ranges::all_of(cardLayouts,
                                  [](const CardLayout& layout) { return layout.cards() % 2 == 0; }),
              "an odd grid would leave one card without a partner");

/// The number of the layout for the setting `AmountCards`: the setting itself,
/// 1 to 6, or the nearest number if it lies outside.
[[nodiscard]] constexpr int cardLayoutNumber(std::int64_t amountCards) noexcept
{
    return static_cast<int>(
        std::clamp<std::int64_t>(amountCards, 1, std::int64_t{cardLayouts.size()}));
}

/// The layout for the setting `AmountCards`, the nearest for a value outside.
[[nodiscard]] constexpr const CardLayout& cardLayout(std::int64_t amountCards) noexcept
{
    return cardLayouts[static_cast<std::size_t>(cardLayoutNumber(amountCards) - 1)];
}

/// The layout whose window size the main window takes. A value outside the table
/// gives the window of the first layout, whichever board it plays on.
[[nodiscard]] constexpr const CardLayout& windowLayout(std::int64_t amountCards) noexcept
{
    return cardLayoutNumber(amountCards) == amountCards ? cardLayout(amountCards)
                                                        : cardLayouts.front();
}

/// The rounds of a game for the setting `AmountRounds`: at least one.
[[nodiscard]] constexpr std::int64_t roundCount(std::int64_t amountRounds) noexcept
{
    return std::max<std::int64_t>(amountRounds, 1);
}
