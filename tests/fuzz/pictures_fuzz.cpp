// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Files of any content as pictures. Films are not among them: their module is not here.
#include "fuzz.h"
#include "photos/card_photo.h"
#include "photos/exif_orientation.h"
#include "photos/protocol/descriptor.h"
#include "photos/protocol/messages.h"

#include <QImageReader>
#include <QLoggingCategory>
#include <sys/mman.h>
#include <unistd.h>

void tryInput(const QByteArray& input)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    const Descriptor file(::memfd_create("picture", MFD_CLOEXEC));
    require(::write(file.get(), input.constData(), std::size_t(input.size())) == input.size(),
            "the input fits into memory");

    const QImage image = cardPhoto(file.get());
    require(image.isNull() || (image.width() == PhotoMessages::pictureEdge &&
                               image.sizeInBytes() == PhotoMessages::pictureBytes),
            "a picture has the size of a card's");
    require(image.isNull() || image.format() == QImage::Format_RGB32 ||
                image.format() == QImage::Format_ARGB32_Premultiplied,
            "a picture has one of two formats");
    for (const QByteArray& exif : {exifOfWebp(file.get()), input}) {
        const int orientation = exifOrientation(exif);
        require(orientation >= 1 && orientation <= 8, "an orientation is one of eight");
    }
}
