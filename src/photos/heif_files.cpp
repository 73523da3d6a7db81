// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/heif_files.h"

#include "photos/image_files.h"

#include <QColorSpace>
#include <QFile>
#include <algorithm>
#include <libheif/heif.h>
#include <memory>

namespace {

// The largest pictures of cameras have a tenth of this.
constexpr qint64 longestFile = 200'000'000; // bytes

/// `object`, released by `release` in the end.
template <class Object, class Result>
auto owned(Object* object, Result (*release)(Object*))
{
    return std::unique_ptr<Object, Result (*)(Object*)>(object, release);
}

bool isFine(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

QColorSpace colourSpaceOf(const heif_image_handle* handle)
{
    if (const size_t length = heif_image_handle_get_raw_color_profile_size(handle); length > 0) {
        QByteArray profile(qsizetype(length), '\0');
        if (isFine(heif_image_handle_get_raw_color_profile(handle, profile.data())))
            return QColorSpace::fromIccProfile(profile);
    }
    heif_color_profile_nclx* numbers = nullptr;
    if (!isFine(heif_image_handle_get_nclx_color_profile(handle, &numbers)))
        return {};
    const bool isDisplayP3 = numbers->color_primaries == heif_color_primaries_SMPTE_EG_432_1;
    heif_nclx_color_profile_free(numbers);
    return isDisplayP3 ? QColorSpace(QColorSpace::DisplayP3) : QColorSpace();
}

QImage decoded(const heif_image_handle* handle)
{
    const qint64 pixels =
        qint64{heif_image_handle_get_width(handle)} * heif_image_handle_get_height(handle);
    if (pixels <= 0 || pixels > mostPixels)
        return {};
    const bool hasAlpha = heif_image_handle_has_alpha_channel(handle) != 0;
    const auto options = owned(heif_decoding_options_alloc(), heif_decoding_options_free);
    options->convert_hdr_to_8bit = 1;
    heif_image* picture = nullptr;
    const heif_error error = heif_decode_image(
        handle, &picture, heif_colorspace_RGB,
        hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get());
    const auto ownedPicture = owned<const heif_image>(picture, heif_image_release);
    if (!isFine(error))
        return {};
    int stride = 0;
    const uint8_t* const data =
        heif_image_get_plane_readonly(picture, heif_channel_interleaved, &stride);
    if (data == nullptr)
        return {};
    const bool isPremultiplied = heif_image_is_premultiplied_alpha(picture) != 0;
    const QImage::Format format = !hasAlpha         ? QImage::Format_RGB888
                                  : isPremultiplied ? QImage::Format_RGBA8888_Premultiplied
                                                    : QImage::Format_RGBA8888;
    // The square that is needed, copied out of the decoder's memory.
    const int width = heif_image_get_primary_width(picture);
    const int height = heif_image_get_primary_height(picture);
    const int edge = std::min(width, height);
    return QImage(data, width, height, stride, format)
        .copy((width - edge) / 2, (height - edge) / 2, edge, edge);
}

} // namespace

QImage readHeif(int file)
{
    QFile device;
    if (!device.open(file, QIODevice::ReadOnly) || device.size() > longestFile)
        return {};
    const QByteArray bytes = device.readAll();
    // Loads the decoders where they are plugins. They stay: the process is short-lived.
    heif_init(nullptr);
    const auto context = owned(heif_context_alloc(), heif_context_free);
    if (!isFine(heif_context_read_from_memory_without_copy(context.get(), bytes.constData(),
                                                           size_t(bytes.size()), nullptr)))
        return {};
    heif_image_handle* primary = nullptr;
    const heif_error error = heif_context_get_primary_image_handle(context.get(), &primary);
    const auto handle = owned<const heif_image_handle>(primary, heif_image_handle_release);
    if (!isFine(error))
        return {};
    QImage image = decoded(primary);
    if (!image.isNull())
        image.setColorSpace(colourSpaceOf(primary));
    return image;
}
