// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QColor;
class QWindow;

/// Sets the colour with which an X server fills new and uncovered parts of `window` until
/// they are painted. `window` must exist there. Does nothing elsewhere: other platforms
/// show a window only when it is painted.
void setNativeBackground(const QWindow& window, const QColor& colour);
