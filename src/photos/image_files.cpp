// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/image_files.h"

#include "photos/exif_orientation.h"
#include "photos/protocol/messages.h"

#include <QFile>
#include <QImageIOHandler>
#include <QImageReader>
#include <algorithm>
#include <unistd.h>

namespace {

// Three bytes a pixel and sixteen-bit channels are still within the limit of memory.
constexpr int mostMegabytes = 400;

// The largest of cameras have a fifth of this.
constexpr qint64 longestJpeg = 256'000'000; // bytes

QByteArray readerName(FileKind kind)
{
    switch (kind) {
    case FileKind::jpeg:
        return "jpeg";
    case FileKind::png:
        return "png";
    case FileKind::gif:
        return "gif";
    case FileKind::webp:
        return "webp";
    case FileKind::tiff:
        return "tiff";
    case FileKind::bmp:
        return "bmp";
    default:
        return {};
    }
}

/// Whether the mark that ends a JPEG picture follows its data. Without it the
/// reader would give the rest in plain grey.
bool isWholeJpeg(QFile& file)
{
    constexpr char mark = '\xff';
    constexpr char startOfScan = '\xda';
    file.seek(2);
    while (file.pos() < longestJpeg) {
        const QByteArray header = file.read(4);
        if (header.size() < 4 || header[0] != mark)
            return false;
        if (header[1] == mark) { // filling
            file.seek(file.pos() - 3);
            continue;
        }
        const int length = (quint8(header[2]) << 8) + quint8(header[3]);
        if (length < 2 || !file.seek(file.pos() + length - 2))
            return false;
        if (header[1] == startOfScan)
            break;
    }
    constexpr qint64 block = 65'536;
    QByteArray data;
    while (file.pos() < longestJpeg) {
        const QByteArray more = file.read(block);
        if (more.isEmpty())
            return false;
        // The mark may lie across two blocks.
        data = data.right(1) + more;
        if (data.contains("\xff\xd9"))
            return true;
    }
    return false;
}

/// The size to decode to: the smaller side as long as a card's picture, and never
/// more than the file holds.
QSize sizeNeeded(QSize whole)
{
    const int edge = PhotoMessages::pictureEdge;
    return std::min(whole.width(), whole.height()) <= edge
               ? whole
               : whole.scaled(edge, edge, Qt::KeepAspectRatioByExpanding);
}

} // namespace

QImage readImageFile(int file, FileKind kind)
{
    QFile device;
    if (!device.open(file, QIODevice::ReadOnly))
        return {};
    if (kind == FileKind::jpeg && !isWholeJpeg(device))
        return {};
    device.seek(0);

    QImageReader::setAllocationLimit(mostMegabytes);
    // Named and not to be guessed: no plugin for other formats is even loaded.
    QImageReader reader(&device, readerName(kind));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const qint64 pixels = qint64{size.width()} * size.height();
    const bool isScaled = kind == FileKind::jpeg;
    if (!size.isValid() || pixels > (isScaled ? mostPixelsScaled : mostPixels))
        return {};
    if (isScaled)
        reader.setScaledSize(sizeNeeded(size));
    const QImage image = reader.read();
    // Of all the readers for formats with EXIF data this one does not look at them.
    return kind == FileKind::webp ? upright(image, exifOrientation(exifOfWebp(file))) : image;
}
