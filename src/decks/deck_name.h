// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class UserDefaults;

/// The decks that are always there, in the order in which they are offered.
[[nodiscard]] const QStringList& baseCardDecks();

/// The name of the deck of all photos.
[[nodiscard]] const QString& photoLibraryDeck();

/// What the name of an album's deck begins with; the album's title follows.
[[nodiscard]] const QString& photoAlbumDeckPrefix();

/// The deck's name as stored in the settings, trimmed; "Cyberpunk" if none is
/// stored. Not checked further: it may be empty, or name no deck.
[[nodiscard]] QString storedDeckName(const UserDefaults& defaults);

/// The album's title if `deckName` names an album's deck: the trimmed rest
/// after the prefix. None for every other deck and for an empty title.
[[nodiscard]] std::optional<QString> photoAlbumTitle(const QString& deckName);
