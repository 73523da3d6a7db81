// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

/// The colours that do not come from the desktop's palette.
namespace Colours {

inline constexpr QColor gray{0x8E, 0x8E, 0x93};
inline constexpr QColor yellow{0xFF, 0xCC, 0x00};
inline constexpr QColor red{0xFF, 0x3B, 0x30};

/// `colour` with `opacity` from 0 to 1.
[[nodiscard]] QColor withOpacity(QColor colour, double opacity);

/// Whether `palette` is a dark one: light text on a dark window.
[[nodiscard]] bool isDark(const QPalette& palette);

/// The blue of names, a lighter one on dark windows.
[[nodiscard]] QColor systemBlue(const QPalette& palette);

/// Text that steps back, such as headings of lists.
[[nodiscard]] QColor secondaryText(const QPalette& palette);

/// The ring around the focused card; at least 3:1 to the window (WCAG 1.4.11).
[[nodiscard]] QColor focusRing(const QPalette& palette);

} // namespace Colours
