// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screen_metrics.h"

#include <algorithm>

double ScreenMetrics::calculateCardSize(QSizeF windowSize, int columns, int rows)
{
    const double perCardWidth =
        (windowSize.width() - leftPanelWidth - 80 - spacing * std::max(0, columns - 1)) / columns;
    const double perCardHeight =
        (windowSize.height() - headerHeight - footerHeight - 40 - spacing * std::max(0, rows - 1)) /
        rows;
    return std::max(smallestCard, std::min(perCardWidth, perCardHeight));
}
