// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <filesystem>
#include <fstream>
#include <libheif/heif_cxx.h>
#include <string_view>

/// Writes a file whose name need not be text, in a folder that it makes.
inline void writeFile(const QByteArray& path, std::string_view contents = {})
{
    const std::filesystem::path file(path.toStdString());
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << contents;
}

/// Writes `image` as a HEIC or AVIF file whose container says that it is to be
/// turned as `orientation` (1 to 8) says; the EXIF data in it say so once more.
inline void writeHeif(const QString& path, const QImage& image, int orientation,
                      heif_compression_format format)
{
    heif::Image pixels;
    pixels.create(image.width(), image.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB);
    pixels.add_plane(heif_channel_interleaved, image.width(), image.height(), 8);
    int stride = 0;
    uint8_t* const plane = pixels.get_plane(heif_channel_interleaved, &stride);
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < rgb.height(); ++y)
        std::copy_n(rgb.constScanLine(y), 3 * rgb.width(), plane + std::ptrdiff_t{stride} * y);
    const QByteArray profile = image.colorSpace().iccProfile();
    if (!profile.isEmpty())
        pixels.set_raw_color_profile(heif_color_profile_type_prof,
                                     {profile.begin(), profile.end()});

    heif::Encoder encoder(format);
    encoder.set_lossy_quality(95);
    heif::Context::EncodingOptions options;
    options.image_orientation = heif_orientation(orientation);
    heif::Context context;
    const heif::ImageHandle handle = context.encode_image(pixels, encoder, options);
    const QByteArray exif = QByteArray::fromHex("49492a000800000001001201030001000000") +
                            char(orientation) + QByteArray(7, '\0');
    context.add_exif_metadata(handle, exif.constData(), int(exif.size()));
    context.write_to_file(QFile::encodeName(path).toStdString());
}
