// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/film_stills.h"

#include "photos/image_files.h"

#include <QCoreApplication>
#include <QLibrary>
#include <array>

namespace {

// Many films fade in, and some out.
constexpr std::array percents = {10, 30, 50, 70, 90};

StillFunction loadedFunction()
{
    static QLibrary module(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/paircade-films.so"));
    return reinterpret_cast<StillFunction>(module.resolve(stillFunctionName));
}

bool isBlack(const QImage& image)
{
    constexpr int darkest = 24; // of 255
    const QImage few = image.scaled(16, 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                           .convertToFormat(QImage::Format_Grayscale8);
    for (int y = 0; y < few.height(); ++y) {
        const uchar* const row = few.constScanLine(y);
        if (std::any_of(row, row + few.width(), [](uchar gray) { return gray > darkest; }))
            return false;
    }
    return true;
}

} // namespace

QImage filmStill(int file)
{
    const StillFunction takeStill = loadedFunction();
    if (takeStill == nullptr)
        return {};
    // The library below takes names only; this one cannot have become another file.
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(file);
    QImage image;
    for (const int percent : percents) {
        FilmStill still;
        takeStill(path.constData(), percent, still);
        const qint64 pixels = qint64{still.width} * still.height;
        if (pixels <= 0 || pixels > mostPixels || still.pixels.size() < 3 * pixels)
            continue;
        image = QImage(reinterpret_cast<const uchar*>(still.pixels.constData()), still.width,
                       still.height, qsizetype{3} * still.width, QImage::Format_RGB888)
                    .copy();
        if (!isBlack(image))
            break;
    }
    return image;
}
