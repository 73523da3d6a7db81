// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

/// The orientation that EXIF data give: 1 (upright) to 8; 1 if they give none.
/// `exif` begins with the header of TIFF, "II" or "MM".
[[nodiscard]] int exifOrientation(QByteArrayView exif);

/// The EXIF data in a WebP file; empty if it has none. Reads only headers.
[[nodiscard]] QByteArray exifOfWebp(int file);

/// `image` as it looks upright.
[[nodiscard]] QImage upright(const QImage& image, int orientation);
