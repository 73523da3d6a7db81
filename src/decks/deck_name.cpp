// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "decks/deck_name.h"

#include "platform/trim.h"
#include "platform/user_defaults.h"
#include "settings/settings_keys.h"

const QStringList& baseCardDecks()
{
    static const QStringList decks{QStringLiteral("Cyberpunk"), QStringLiteral("Kids"),
                                   QStringLiteral("70s"), QStringLiteral("80s"),
                                   photoLibraryDeck()};
    return decks;
}

const QString& photoLibraryDeck()
{
    static const QString deck = QStringLiteral("iPhoto");
    return deck;
}

const QString& photoAlbumDeckPrefix()
{
    static const QString prefix = QStringLiteral("iPhoto: ");
    return prefix;
}

QString storedDeckName(const UserDefaults& defaults)
{
    return trimmedText(defaults.string(SettingsKeys::CardDeck).value_or(baseCardDecks().front()));
}

std::optional<QString> photoAlbumTitle(const QString& deckName)
{
    if (!deckName.startsWith(photoAlbumDeckPrefix()))
        return std::nullopt;
    const QString title = trimmedText(deckName.mid(photoAlbumDeckPrefix().size()));
    return title.isEmpty() ? std::nullopt : std::optional(title);
}
