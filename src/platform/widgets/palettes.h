// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

/// Palettes for the Fusion look, with texts that can be read, and what a palette
/// in force calls for.
namespace Palettes {

/// A palette of our own; Fusion has no dark one.
[[nodiscard]] QPalette dark();

/// Fusion's own light palette, but with disabled and placeholder texts dark
/// enough.
[[nodiscard]] QPalette light();

/// Whether `palette` is a dark one: light text on a dark window.
[[nodiscard]] bool isDark(const QPalette& palette);

/// The colour of text that steps back, such as headings of lists.
[[nodiscard]] QColor secondaryText(const QPalette& palette);

} // namespace Palettes
