// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <libheif/heif.h>

/// Writes `image` as a HEIC or AVIF file whose container says that it is to be
/// turned as `orientation` (1 to 8) says; the EXIF data in it say so once more.
inline void writeHeif(const QString& path, const QImage& image, int orientation,
                      heif_compression_format format)
{
    const auto check = [](const heif_error& error) {
        if (error.code != heif_error_Ok)
            qFatal("libheif: %s", error.message);
    };
    heif_image* pixels = nullptr;
    check(heif_image_create(image.width(), image.height(), heif_colorspace_RGB,
                            heif_chroma_interleaved_RGB, &pixels));
    check(heif_image_add_plane(pixels, heif_channel_interleaved, image.width(), image.height(), 8));
    int stride = 0;
    uint8_t* const plane = heif_image_get_plane(pixels, heif_channel_interleaved, &stride);
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < rgb.height(); ++y)
        std::copy_n(rgb.constScanLine(y), 3 * rgb.width(), plane + std::ptrdiff_t{stride} * y);
    const QByteArray profile = image.colorSpace().iccProfile();
    if (!profile.isEmpty())
        check(heif_image_set_raw_color_profile(pixels, "prof", profile.constData(),
                                               std::size_t(profile.size())));

    heif_context* const context = heif_context_alloc();
    heif_encoder* encoder = nullptr;
    check(heif_context_get_encoder_for_format(context, format, &encoder));
    check(heif_encoder_set_lossy_quality(encoder, 95));
    heif_encoding_options* const options = heif_encoding_options_alloc();
    options->image_orientation = heif_orientation(orientation);
    heif_image_handle* handle = nullptr;
    check(heif_context_encode_image(context, pixels, encoder, options, &handle));
    const QByteArray exif = QByteArray::fromHex("49492a000800000001001201030001000000") +
                            char(orientation) + QByteArray(7, '\0');
    check(heif_context_add_exif_metadata(context, handle, exif.constData(), int(exif.size())));
    check(heif_context_write_to_file(context, QFile::encodeName(path).constData()));
    heif_image_handle_release(handle);
    heif_encoding_options_free(options);
    heif_encoder_release(encoder);
    heif_context_free(context);
    heif_image_release(pixels);
}
