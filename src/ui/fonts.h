// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// The system's font, `points` high (a point is one device-independent pixel).
[[nodiscard]] QFont systemFont(int points, QFont::Weight weight = QFont::Normal);

/// The system's font of fixed width, `points` high.
[[nodiscard]] QFont monospacedFont(int points, QFont::Weight weight = QFont::Normal);
