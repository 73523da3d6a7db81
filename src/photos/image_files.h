// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photos/file_kind.h"

#include <QImage>

/// The most pixels that a file is decoded with as a whole.
inline constexpr qint64 mostPixels = 50'000'000;
/// The most pixels of a file that is decoded at the size needed: it takes time still.
inline constexpr qint64 mostPixelsScaled = 250'000'000;

/// Reads the JPEG, PNG, GIF (its first frame), WebP, TIFF or BMP picture in the
/// open file, by Qt's reader for `kind` and no other. JPEG comes scaled down to what
/// a card needs. Upright; in the file's own colour space. Null if the file is
/// broken, cut short or has too many pixels.
[[nodiscard]] QImage readImageFile(int file, FileKind kind);
