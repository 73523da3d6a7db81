// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/palettes.h"

#include <QColor>
#include <QPalette>

/// The colours that do not come from the desktop's palette.
namespace Colours {

inline constexpr QColor gray{0x8E, 0x8E, 0x93};
inline constexpr QColor yellow{0xFF, 0xCC, 0x00};
inline constexpr QColor red{0xFF, 0x3B, 0x30};
/// The ends of the back of a card, from its top left to its bottom right.
inline constexpr QColor cardBackLight{0x14, 0xA8, 0xBD};
inline constexpr QColor cardBackDark{0x08, 0x6B, 0x8A};

/// `colour` with `opacity` from 0 to 1.
[[nodiscard]] QColor withOpacity(QColor colour, double opacity);

using Palettes::isDark;
using Palettes::secondaryText;

/// The blue of names, a lighter one on dark windows.
[[nodiscard]] QColor systemBlue(const QPalette& palette);

/// The ring around the focused card; at least 3:1 to the window (WCAG 1.4.11).
[[nodiscard]] QColor focusRing(const QPalette& palette);

} // namespace Colours
