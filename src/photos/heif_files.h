// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// Reads the main picture of the HEIC or AVIF file, upright as its container says
/// (EXIF data in such files repeat that and must not count again); in the file's
/// own colour space. Null if it cannot be read or has more than `mostPixels`.
[[nodiscard]] QImage readHeif(int file);
