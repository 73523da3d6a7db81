// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSizeF>

/// The lengths that lay out the screen, in points.
namespace ScreenMetrics {

inline constexpr int spacing = 20;         ///< Between cards, both ways.
inline constexpr int headerHeight = 60;    ///< The title strip.
inline constexpr int footerHeight = 60;    ///< Kept free below the board.
inline constexpr int leftPanelWidth = 220; ///< The sidebar's column.
inline constexpr int leadingPadding = 16;  ///< Left of that column.
inline constexpr int dividerX = leadingPadding + leftPanelWidth;
inline constexpr double smallestCard = 70;

/// The edge of a card in a view of `windowSize` with `columns` x `rows` cards:
/// what fits both ways, but never less than smallestCard.
[[nodiscard]] double calculateCardSize(QSizeF windowSize, int columns, int rows);

} // namespace ScreenMetrics
