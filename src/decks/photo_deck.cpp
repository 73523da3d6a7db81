// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/photo_deck.h"

#include "game/rules/shuffle.h"

#include <algorithm>
#include <utility>

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
