// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the deck in the preferences.
#include "support/pane_window.h"
#include "support/rows.h"

#include <QCheckBox>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class PreferencesDecksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMenuOffersAlbumsOnce_data()
    {
        const Rows<int, QStringList, QString> row{"status", "albums", "photos"};
        const QStringList albums{QString(), u"iPhoto: bee"_s, u"iPhoto: Cat"_s, u"iPhoto: Trip"_s};
        row("never asked", 0, {}, u"Not asked yet"_s);
        row("denied", 2, {}, u"No access"_s);
        row("authorized", 3, albums, u"All pictures"_s);
        row("limited", 4, albums, u"Only “<Garden>”"_s);
    }

    void theMenuOffersAlbumsOnce()
    {
        QFETCH(const int, status);
        QFETCH(const QStringList, albums);
        PaneWindow window("CardDeck=80s\nPaircadeAlbum=1\n", [status](StagePlatform& platform) {
            platform.photos.status = PhotoAuthorization(status);
            platform.photos.folder = u"<Garden>"_s;
            platform.photos.content.list = {{u" Trip\n"_s, 3}, {u"Cat"_s, 1},  {std::nullopt, 5},
                                            {u"Empty"_s, 0},   {u"Trip"_s, 2}, {u"bee"_s, 1},
                                            {u" \n"_s, 4}};
        });
        QStringList titles;
        for (int item = 0; item < window.decks().count(); ++item)
            titles << window.decks().itemText(item);
        QCOMPARE(titles, Preferences::baseCardDecks() + albums);
        QTEST(window.text(u"photosState"_s), "photos");
        QCOMPARE(window.child<QWidget>(u"photosButton"_s).isEnabled(), status != 1);
        QCOMPARE(window.pane->fetchAvailablePhotoAlbums().count(u"Trip"_s),
                 albums.isEmpty() ? 0 : 2);

        // Any deck but that of all photos switches the album off.
        QCheckBox& album = *window.pane->paircade_album();
        QVERIFY(!album.isEnabled() && !album.isChecked());
        QCOMPARE(stored("PaircadeAlbum"), "0"_ba);
        window.decks().setFocus();
        const auto& preview = window.child<QWidget>(u"deckPreview"_s);
        QCOMPARE(preview.accessibleName(), u"Backs of cards"_s); // this deck is missing
        // No photo is read, whatever lies where a deck of theirs would lie.
        makeDeck(window.resources(), u"iPhoto"_s, 5);
        window.key(Qt::Key_Down);
        QCOMPARE(preview.accessibleName(), u"Backs of cards"_s);
        QVERIFY(album.isEnabled() && !album.isChecked());
        window.click(album);
        QCOMPARE(stored("PaircadeAlbum"), "1"_ba);
        window.wheel(window.decks(), -1);
        // The wheel passes over the separator.
        QCOMPARE(stored("CardDeck"), albums.isEmpty() ? "iPhoto" : "iPhoto: bee");
        QCOMPARE(stored("PaircadeAlbum"), albums.isEmpty() ? "1" : "0");
        if (albums.isEmpty()) {
            window.decks().setFocus();
            window.key(Qt::Key_Home);
            QCOMPARE(
                preview.accessibleName(),
                u"Pictures of the deck: picture00, picture01, picture02, picture03, picture04"_s);
            return;
        }

        // What is chosen is not written again; once the album is known to be gone, the
        // choice goes with it.
        QSignalSpy written(window.platform.defaults.get(), &UserDefaults::written);
        window.pane->rebuildCardDeckMenu();
        window.platform.photos.content = {.list = {}, .isComplete = false};
        window.pane->rebuildCardDeckMenu();
        QCOMPARE(window.decks().currentText(), u"iPhoto: bee"_s);
        QCOMPARE(written.count(), 0);
        window.close();
        window.platform.photos.content.isComplete = true;
        window.open();
        QCOMPARE(window.decks().currentText(), u"Cyberpunk"_s);
        QCOMPARE(stored("CardDeck"), "Cyberpunk"_ba);
    }

    void theNextRoundIsDealtFromTheChosenDeck()
    {
        PaneWindow window("AmountRounds=2\nCardDeck=Cyberpunk\n");
        window.close();
        window.startGame();
        window.open();
        makeDeck(window.resources(), u"Kids"_s, 6);
        QFile::rename(window.resources() + u"/Cards/Kids/picture00.png"_s,
                      window.resources() + u"/Cards/Kids/kid.png"_s);
        QVERIFY(window.decks().hasFocus()); // the steppers are locked
        window.key(Qt::Key_Down);
        QCOMPARE(stored("CardDeck"), "Kids"_ba);
        const auto isKid = [](const MemoryCard& card) { return card.image.name == u"kid"_s; };
        QVERIFY(std::ranges::none_of(window.game().cards(), isKid));
        for (int pair = 0; pair < 6; ++pair)
            window.clickPair();
        QTRY_COMPARE(window.game().currentRound(), 2);
        QVERIFY(std::ranges::any_of(window.game().cards(), isKid));
    }
};

QTEST_MAIN(PreferencesDecksTest)
#include "preferences_decks_test.moc"
