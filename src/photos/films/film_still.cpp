// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The module that decodes films; see film_stills.h.
#include "photos/film_stills.h"

#include <libffmpegthumbnailer/videothumbnailerc.h>
#include <memory>

extern "C" Q_DECL_EXPORT void paircadeFilmStill(const char* path, int percent, FilmStill& still)
{
    const std::unique_ptr<video_thumbnailer, void (*)(video_thumbnailer*)> thumbnailer(
        video_thumbnailer_create(), video_thumbnailer_destroy);
    const std::unique_ptr<image_data, void (*)(image_data*)> data(
        video_thumbnailer_create_image_data(), video_thumbnailer_destroy_image_data);
    // Its own size: the shape, and so the size that fills a card, is not known before.
    video_thumbnailer_set_size(thumbnailer.get(), 0, 0);
    thumbnailer->thumbnail_image_type = Rgb;
    thumbnailer->seek_percentage = percent;
    if (video_thumbnailer_generate_thumbnail_to_buffer(thumbnailer.get(), path, data.get()) != 0 ||
        data->image_data_ptr == nullptr)
        return;
    still.width = data->image_data_width;
    still.height = data->image_data_height;
    still.pixels =
        QByteArray(reinterpret_cast<const char*>(data->image_data_ptr), data->image_data_size);
}
