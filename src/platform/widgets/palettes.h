// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

/// Palettes for the Fusion look, with texts that can be read.
namespace Palettes {

[[nodiscard]] QPalette dark();

/// Fusion's own light palette, but with disabled and placeholder texts dark
/// enough.
[[nodiscard]] QPalette light();

} // namespace Palettes
