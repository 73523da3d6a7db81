// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the preferences that chooses the deck.
#include "decks/deck_name.h"
#include "platform/collation.h"
#include "platform/photo_library.h"
#include "platform/platform.h"
#include "platform/trim.h"
#include "platform/user_defaults.h"
#include "platform/widgets/whole_text.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"

#include <QSignalBlocker>
#include <algorithm>
#include <ui_preferences.h>
#include <utility>

void Preferences::carddeck_changed()
{
    const QComboBox& menu = *cardDeck_dropdown();
    platform().defaults.setString(SettingsKeys::CardDeck, menu.currentIndex() < 0
                                                              ? baseCardDecks().front()
                                                              : menu.currentText());
    updatePaircadeAlbumState();
    showDeck();
}

void Preferences::updatePaircadeAlbumState()
{
    const bool isPhotoLibrary = cardDeck_dropdown()->currentText() == photoLibraryDeck();
    paircade_album()->setEnabled(isPhotoLibrary);
    if (isPhotoLibrary)
        return;
    {
        const QSignalBlocker blocker(paircade_album());
        paircade_album()->setChecked(false);
    }
    platform().defaults.setInteger(SettingsKeys::PaircadeAlbum, 0);
}

void Preferences::rebuildCardDeckMenu()
{
    const QString current =
        platform().defaults.string(SettingsKeys::CardDeck).value_or(baseCardDecks().front());
    QStringList decks = baseCardDecks();
    for (const QString& title : fetchAvailablePhotoAlbums())
        decks << albumPrefix() + title;
    if (!m_albums.isComplete && current.startsWith(albumPrefix()))
        decks << current;
    decks.removeDuplicates();

    QComboBox& menu = *cardDeck_dropdown();
    menu.clear();
    menu.addItems(decks);
    // A title may be longer than the menu is wide.
    for (int item = int(baseCardDecks().size()); item < menu.count(); ++item)
        menu.setItemData(item, toolTipText(decks[item]), Qt::ToolTipRole);
    qsizetype selected = decks.indexOf(current);
    if (selected < 0) {
        selected = 0;
        platform().defaults.setString(SettingsKeys::CardDeck, decks.front());
    }
    menu.setCurrentIndex(int(selected));
    // Comes last: a separator counts as an item, of the empty title.
    if (decks.size() > baseCardDecks().size())
        menu.insertSeparator(int(baseCardDecks().size()));
    showDeck();
}

QStringList Preferences::fetchAvailablePhotoAlbums()
{
    PhotoLibrary& photos = platform().photos;
    if (!std::exchange(m_isOpening, false))
        m_albums = allowsReading(photos.authorizationStatus()) ? photos.albums() : PhotoAlbums{};
    QStringList titles;
    for (const PhotoAlbum& album : m_albums.list) {
        const QString title = trimmedText(album.localizedTitle.value_or(QString()));
        if (!title.isEmpty() && album.assetCount >= 1)
            titles << title;
    }
    std::ranges::stable_sort(titles, sortsBefore);
    return titles;
}

void Preferences::showDeck()
{
    m_ui->deckPreview->setDeck(cardDeck_dropdown()->currentText());
}
