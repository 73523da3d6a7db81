// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/exif_orientation.h"

#include <QTransform>
#include <QtEndian>
#include <array>
#include <unistd.h>

namespace {

constexpr quint16 orientationTag = 0x0112;
constexpr qsizetype longestExif = 65'536;

template <class Number>
Number numberAt(QByteArrayView bytes, qsizetype at, bool isLittle)
{
    if (at < 0 || at > bytes.size() - qsizetype{sizeof(Number)})
        return 0;
    return isLittle ? qFromLittleEndian<Number>(bytes.data() + at)
                    : qFromBigEndian<Number>(bytes.data() + at);
}

} // namespace

int exifOrientation(QByteArrayView exif)
{
    const bool isLittle = exif.startsWith("II");
    if (!isLittle && !exif.startsWith("MM"))
        return 1;
    const qsizetype directory = numberAt<quint32>(exif, 4, isLittle);
    const int entries = numberAt<quint16>(exif, directory, isLittle);
    for (int i = 0; i < entries; ++i) {
        const qsizetype entry = directory + 2 + qsizetype{12} * i;
        if (numberAt<quint16>(exif, entry, isLittle) != orientationTag)
            continue;
        const int orientation = numberAt<quint16>(exif, entry + 8, isLittle);
        return orientation >= 1 && orientation <= 8 ? orientation : 1;
    }
    return 1;
}

QByteArray exifOfWebp(int file)
{
    std::array<char, 8> header{};
    for (off_t at = 12;
         ::pread(file, header.data(), header.size(), at) == ssize_t(header.size());) {
        const auto length = qFromLittleEndian<quint32>(header.data() + 4);
        if (QByteArrayView(header.data(), 4) == QByteArrayView("EXIF")) {
            QByteArray exif(std::min<qsizetype>(length, longestExif), '\0');
            exif.truncate(
                std::max<ssize_t>(::pread(file, exif.data(), size_t(exif.size()), at + 8), 0));
            // Some writers put the prefix of JPEG before it.
            return exif.startsWith("Exif\0") ? exif.mid(6) : exif;
        }
        at += 8 + off_t{length} + length % 2;
    }
    return {};
}

QImage upright(const QImage& image, int orientation)
{
    // Mirrored left to right first, then turned clockwise.
    const bool isMirrored =
        orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
    static constexpr std::array<int, 9> degrees = {0, 0, 0, 180, 180, 270, 90, 90, 270};
    const int turned = degrees.at(std::size_t(orientation));
    const QImage mirrored = isMirrored ? image.mirrored(true, false) : image;
    return turned == 0 ? mirrored : mirrored.transformed(QTransform().rotate(turned));
}
