// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/card_photo.h"

#include "photos/file_kind.h"
#include "photos/film_stills.h"
#include "photos/heif_files.h"
#include "photos/image_files.h"
#include "photos/png_rows.h"
#include "photos/protocol/messages.h"

#include <QColorSpace>
#include <algorithm>
#include <array>
#include <unistd.h>

namespace {

QImage decoded(int file)
{
    std::array<char, headBytes> head{};
    const ssize_t length = ::pread(file, head.data(), head.size(), 0);
    const FileKind kind = kindByContent(QByteArrayView(head.data(), std::max<ssize_t>(length, 0)));
    switch (kind) {
    case FileKind::none:
        return {};
    case FileKind::heif:
        return readHeif(file);
    case FileKind::film:
        return filmStill(file);
    case FileKind::png:
        if (const QImage image = readPngRows(file); !image.isNull())
            return image;
        break; // interlaced
    default:
        break;
    }
    return readImageFile(file, kind);
}

} // namespace

QImage cardPhoto(int file)
{
    using PhotoMessages::pictureEdge;
    QImage image = decoded(file);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // Its profile knows four inks; what scales and draws knows three colours.
    if (image.format() == QImage::Format_CMYK8888)
        image = image.colorSpace().isValid()
                    ? image.convertedToColorSpace(QColorSpace::SRgb, QImage::Format_RGB32)
                    : image.convertedTo(QImage::Format_RGB32);
#endif
    // Scaling gives one to pictures with a palette.
    const bool hasAlpha = image.hasAlphaChannel();
    const int edge = std::min(image.width(), image.height());
    if (edge == 0)
        return {};
    image = image.copy((image.width() - edge) / 2, (image.height() - edge) / 2, edge, edge);
    if (edge != pictureEdge)
        image =
            image.scaled(pictureEdge, pictureEdge, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (image.colorSpace().isValid())
        image.convertToColorSpace(QColorSpace::SRgb);
    return image.convertToFormat(hasAlpha ? QImage::Format_ARGB32_Premultiplied
                                          : QImage::Format_RGB32);
}
