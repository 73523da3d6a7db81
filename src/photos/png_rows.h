// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// Reads the PNG picture in the open file row by row, scaled down by a whole number
/// while it is read, so that memory holds the result and one row: its middle
/// square, with at least the pixels of a card's picture where the file has them.
/// Upright; in the file's own colour space. Null if it is broken, cut short, too
/// large or interlaced: the rows of such a file come in no useful order.
[[nodiscard]] QImage readPngRows(int file);
