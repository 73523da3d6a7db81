// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/photo_deck.h"

#include "game/rules/shuffle.h"
#include "platform/trim.h"

#include <algorithm>
#include <utility>

std::optional<PhotoAlbum> albumTitled(const PhotoAlbums& albums, const QString& title)
{
    const auto found = std::ranges::find_if(albums.list, [&title](const PhotoAlbum& album) {
        return album.localizedTitle && trimmedText(*album.localizedTitle) == title;
    });
    return found == albums.list.end() ? std::nullopt : std::optional(*found);
}

CardPictures loadPhotoDeck(PhotoFetch& fetch, PhotoAssets assets, std::size_t most)
{
    shuffle(assets);
    assets.resize(std::min(assets.size(), most));
    CardPictures pictures;
    for (const PhotoAsset& asset : assets) {
        QImage image = fetch.image(asset);
        if (!image.isNull())
            pictures.push_back({.image = std::move(image)});
    }
    return pictures;
}
