// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the pictures of a round come from.
#include "decks/bundle_deck.h"
#include "decks/deck_name.h"
#include "game/memory_game.h"
#include "platform/photo_library.h"
#include "platform/platform.h"

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

CardPictures MemoryGame::loadImagesFromPhotoLibrary()
{
    if (!allowsReading(platform().photos.authorizationStatus()))
        showLocalizedAlert("iphoto_access_denied", "iphoto_access_denied_info");
    return {};
}
