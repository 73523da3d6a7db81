// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A program with a probe ends by itself and says on standard output
//   probe MOMENT WALL-MS CPU-MS PEAK-KB WAKE-UPS
// for each moment: once its window was painted ("painted"), and, if PROBE_SECONDS
// is set, at rest ("rested") and that many seconds later ("waited").
// PROBE_BEGIN holds the monotonic milliseconds at which it was started.

/// Brings the program to the state in which it is to rest; seconds until then.
/// Called once the window was painted.
[[nodiscard]] double prepareRest();
