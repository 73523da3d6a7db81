// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// The picture for a card from the open file `file` (a film gives a still): always
/// PhotoMessages::pictureEdge pixels wide and high, its middle if it is not square,
/// upright, in sRGB, as RGB32 or premultiplied ARGB32. Null if it cannot be read.
[[nodiscard]] QImage cardPhoto(int file);
