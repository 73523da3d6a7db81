// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/palettes.h"

#include <QColor>
#include <QLinearGradient>
#include <QPalette>

/// The colours that do not come from the desktop's palette.
namespace Colours {

inline constexpr QColor gray{0x8E, 0x8E, 0x93};
inline constexpr QColor yellow{0xFF, 0xCC, 0x00};
inline constexpr QColor red{0xFF, 0x3B, 0x30};

/// The back of a card that fills `card`: lighter at its top left.
[[nodiscard]] QLinearGradient cardBack(const QRectF& card);

/// `colour` with `opacity` from 0 to 1.
[[nodiscard]] QColor withOpacity(QColor colour, double opacity);

using Palettes::isDark;
using Palettes::secondaryText;

/// The blue of names, a lighter one on dark windows.
[[nodiscard]] QColor systemBlue(const QPalette& palette);

/// The ring around what has the focus; at least 3:1 to the window (WCAG 1.4.11), and
/// the colour of its text under high contrast.
[[nodiscard]] QColor focusRing(const QPalette& palette);

} // namespace Colours
