// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>

/// Whole minutes and remaining seconds of `seconds`, each with at least two
/// digits: 61 reads "01:01", 6000 reads "100:00". Division truncates towards
/// zero, so a negative time, which only an edited file can hold, reads "00:-5".
[[nodiscard]] QString clockText(std::int64_t seconds);
