// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the pictures of a round come from.
#include "decks/bundle_deck.h"
#include "decks/deck_name.h"
#include "decks/photo_deck.h"
#include "game/memory_game.h"
#include "platform/photo_library.h"
#include "platform/platform.h"
#include "platform/trim.h"

#include <algorithm>
#include <utility>

QString MemoryGame::cardDeck() const
{
    return storedDeckName(platform().defaults);
}

std::optional<QString> MemoryGame::selectedPhotoAlbumName() const
{
    return photoAlbumTitle(cardDeck());
}

CardPictures MemoryGame::loadImagesFromBundle() const
{
    return loadBundleDeck(platform().bundle, cardDeck());
}

std::optional<PhotoAlbum> MemoryGame::fetchPhotoAlbum(const QString& named, PhotoFetch& fetch)
{
    const std::vector<PhotoAlbum> albums = fetch.albums().list;
    auto found = std::ranges::find(albums, std::optional(named), &PhotoAlbum::localizedTitle);
    if (found == albums.end())
        found = std::ranges::find(albums, named, [](const PhotoAlbum& album) {
            return trimmedText(album.localizedTitle.value_or(QString()));
        });
    return found == albums.end() ? std::nullopt : std::optional(*found);
}

CardPictures MemoryGame::loadImagesFromPhotoLibrary()
{
    PhotoLibrary& photos = platform().photos;
    PhotoAuthorization status = photos.authorizationStatus();
    if (status == PhotoAuthorization::notDetermined)
        status = photos.requestAuthorization();
    if (!allowsReading(status)) {
        showLocalizedAlert("iphoto_access_denied", "iphoto_access_denied_info");
        return {};
    }

    const std::unique_ptr<PhotoFetch> fetch = photos.startFetch();
    const auto most = static_cast<std::size_t>(pairsPerRound());
    PhotoAssets assets;
    if (const std::optional<QString> title = selectedPhotoAlbumName()) {
        const std::optional<PhotoAlbum> album = fetchPhotoAlbum(*title, *fetch);
        if (album)
            assets = fetch->assets(*album);
        if (!fetch->isListComplete() && assets.size() < most) {
            showLocalizedAlert("iphoto_album_incomplete", "iphoto_album_incomplete_info");
            return {};
        }
        if (!album) {
            showLocalizedAlert("iphoto_album_not_found", "iphoto_album_not_found_info");
            return {};
        }
    } else {
        assets = fetch->images();
    }
    if (assets.empty()) {
        showLocalizedAlert("iphoto_no_images_found", "iphoto_no_images_found_info");
        return {};
    }
    return loadPhotoDeck(*fetch, std::move(assets), most);
}
