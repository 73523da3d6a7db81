// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences driven by mouse, wheel and keyboard.
#include "game/game_status.h"
#include "support/pane_window.h"
#include "support/results.h"
#include "support/rows.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>

using namespace Qt::StringLiterals;

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anyStoredValueIsShownAndRepaired_data()
    {
        // Shown are rounds, layout, volume, and whether found pairs are cleared.
        const Rows<QByteArray, QList<int>, QByteArray> row{"settings", "shown", "deck"};
        row("good ones",
            "AmountRounds=7\nAmountCards=4\nVolumeSound=35\nRemoveMatch=1\nCardDeck=Kids\n",
            {7, 4, 35, 1}, "Kids");
        row("none", "Foreign=1\n", {1, 1, 50, 0}, "Cyberpunk");
        const auto everyKey = [&row](const char* name, const char* value, const QList<int>& shown) {
            QByteArray settings =
                "AmountRounds=%\nAmountCards=%\nVolumeSound=%\nRemoveMatch=%\nCardDeck=%\n";
            row(name, settings.replace("%", value), shown, "Cyberpunk");
        };
        everyKey("too high", "150", {99, 6, 100, 0});
        everyKey("wrap to 1 when narrowed too early", "4294967297", {99, 6, 100, 0});
        everyKey("too low", "-3", {1, 1, 0, 0});
        everyKey("a deck with blanks", "\" 70s \"", {1, 1, 0, 0});
        everyKey("no numbers", "nan", {1, 1, 0, 0});
    }

    void anyStoredValueIsShownAndRepaired()
    {
        QFETCH(const QByteArray, settings);
        QFETCH(const QByteArray, deck);
        PaneWindow window(settings);
        const QList<int> shown{window.pane->roundsStepper()->value(),
                               window.pane->cardsStepper()->value(),
                               window.child<QSlider>(u"volumeSound"_s).value(),
                               int(window.child<QCheckBox>(u"removeMatch"_s).isChecked())};
        QTEST(shown, "shown");
        QCOMPARE(stored("AmountRounds"), QByteArray::number(shown[0]));
        QCOMPARE(stored("AmountCards"), QByteArray::number(shown[1]));
        QCOMPARE(stored("CardDeck"), deck);
        QCOMPARE(window.decks().currentText(), QString::fromUtf8(deck));
        if (settings.contains("VolumeSound=150")) // nobody has touched it
            QCOMPARE(stored("VolumeSound"), "150"_ba);
    }

    void everyWayToChangeASettingIsStoredAtOnce()
    {
        PaneWindow window("AmountRounds=98\nRemoveMatch=2\nPlaySounds=2\nLaunchInFullscreen=2\n");
        QSpinBox& stepper = *window.pane->roundsStepper();
        const auto expect = [&window](const QString& rounds) {
            QCOMPARE(window.text(u"rounds_label"_s), rounds);
            QCOMPARE(stored("AmountRounds"), rounds.section(u' ', 0, 0).toUtf8());
        };
        QVERIFY(stepper.hasFocus());
        for (int press = 0; press < 2; ++press) {
            window.key(Qt::Key_Up);
            expect(u"99 rounds per game"_s);
        }
        stepper.selectAll();
        QTest::keyClicks(&stepper, u"12"_s);
        expect(u"12 rounds per game"_s);
        QTest::mouseClick(&stepper, Qt::LeftButton, {}, {stepper.width() - 6, 6});
        expect(u"13 rounds per game"_s);
        window.wheel(stepper, -12);
        expect(u"1 round per game"_s);

        const std::vector<std::tuple<QString, QByteArray, Qt::Key>> boxes{
            {u"removeMatch"_s, "RemoveMatch", Qt::Key_C},
            {u"playSounds"_s, "PlaySounds", Qt::Key_P},
            {u"launchInFullscreen"_s, "LaunchInFullscreen", Qt::Key_S}};
        for (const auto& [box, key, letter] : boxes) {
            QVERIFY(!window.child<QCheckBox>(box).isChecked()); // only 1 means on
            window.click(box);
            QCOMPARE(stored(key), QByteArray("1"));
            window.key(letter, Qt::AltModifier);
            QTRY_COMPARE(stored(key), QByteArray("0")); // shown pressed for a moment
        }
    }

    void theMainWindowFollowsTheLayout()
    {
        PaneWindow window("AmountCards=3\n", [](StagePlatform& platform) {
            writeResults(platform, 1, {.playerName = u"Mia"_s, .amountCards = 4});
        });
        int posts = 0;
        window.platform.notifications.observe(gameLayoutChanged, window.pane,
                                              [&posts] { ++posts; });
        QVERIFY(window.game().bestTimeScores().empty());
        window.key(Qt::Key_Tab);
        window.key(Qt::Key_Up);
        QCOMPARE(stored("AmountCards"), "4"_ba);
        QCOMPARE(posts, 1);
        QCOMPARE(window.pane->cards_label()->text(), u"6 × 4, 12 pairs"_s);
        QTRY_COMPARE(window.delegate.contentView()->size(), QSize(1320, 760));
        QCOMPARE(window.window().geometry().center(), window.screen().center());
        QCOMPARE(window.text(u"bestTimes1"_s), u"1. Mia – 00:59"_s);
    }

    void withoutAMainWindowSettingsAreStored()
    {
        StagePlatform platform;
        AppDelegate notLaunched;
        for (const int value : {4, 5}) {
            Preferences pane(value == 4 ? nullptr : &notLaunched);
            pane.roundsStepper()->setValue(value);
            pane.cardsStepper()->setValue(value);
            QCOMPARE(stored("AmountRounds"), QByteArray::number(value));
            QCOMPARE(stored("AmountCards"), QByteArray::number(value));
        }
        QCOMPARE(Preferences::cardLayoutLabel(7), u"7"_s);
        QCOMPARE(Preferences::cardLayoutLabel(0), u"0"_s);
    }

    void theVolumeIsStoredAndHeardWhenAChangeEnds()
    {
        PaneWindow window("PlaySounds=0\n", [](auto& platform) { platform.useBuiltResources(); });
        const QString recording = window.platform.home.filePath(u"recording.raw"_s);
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(recording));
        const auto isHeard = [&recording] {
            const QByteArray sound = contentsOf(recording);
            return sound.count('\0') != sound.size();
        };
        auto& volume = window.child<QSlider>(u"volumeSound"_s);
        QWindow* const handle = window.pane->windowHandle();
        const QPoint from = volume.mapTo(window.pane, volume.rect().center()); // its handle
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        for (int way = 10; way <= 70; way += 10)
            QTest::mouseMove(handle, from + QPoint(way, 0));
        QVERIFY(volume.value() > 60);
        QCOMPARE(window.text(u"volumeLabel"_s), QString::number(volume.value()) + u'%');
        QCOMPARE(stored("VolumeSound"), "50"_ba);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, from + QPoint(70, 0));
        QCOMPARE(stored("VolumeSound"), QByteArray::number(volume.value()));

        QSignalSpy written(window.platform.defaults.get(), &UserDefaults::written);
        QTest::mouseClick(handle, Qt::LeftButton, {}, from + QPoint(70, 0));
        QCOMPARE(written.count(), 0);
        volume.setFocus();
        window.key(Qt::Key_Home);
        QCOMPARE(stored("VolumeSound"), "0"_ba);
        window.wheel(volume, 1);
        QCOMPARE(stored("VolumeSound"), "10"_ba);
        QVERIFY(!QFile::exists(recording)); // off: the device is not even opened

        window.click(u"playSounds"_s);
        QTRY_VERIFY(QFile::exists(recording));
        QVERIFY(!isHeard());
        volume.setFocus();
        window.key(Qt::Key_Right);
        QCOMPARE(stored("VolumeSound"), "15"_ba);
        QTRY_VERIFY(isHeard());
        qputenv("SDL_AUDIODRIVER", "dummy");
    }

    void aRunningGameLocksTheSteppersAndKeepsWhatOthersWrite()
    {
        PaneWindow window("AmountRounds=2\nAmountCards=2\nCardDeck=Kids\n");
        makeDeck(window.resources(), u"70s"_s, 24);
        writeSettings("AmountRounds=5\nAmountCards=5\nCardDeck=70s\nForeign=kept\n");
        const QSpinBox& rounds = *window.pane->roundsStepper();
        QCOMPARE(rounds.value(), 2);
        window.startGame(); // reads the file; the open pane's steppers win
        QCOMPARE(stored("AmountRounds"), "2"_ba);
        QCOMPARE(stored("AmountCards"), "2"_ba);
        QCOMPARE(stored("CardDeck"), "70s"_ba);
        QCOMPARE(stored("Foreign"), "kept"_ba);

        // Meanwhile they are locked.
        QVERIFY(!rounds.isEnabled() && !window.pane->cardsStepper()->isEnabled());
        QCOMPARE(rounds.toolTip(), u"Can be changed when the game is over."_s);
        QCOMPARE(rounds.accessibleDescription(), rounds.toolTip());
        window.choose(u"menu_end_game"_s);
        QVERIFY(rounds.isEnabled() && window.pane->cardsStepper()->isEnabled());
        QVERIFY(rounds.toolTip().isEmpty());
        QCOMPARE(rounds.accessibleDescription(), u"2 rounds per game"_s);

        // Closed, the pane keeps nothing from the past.
        window.close();
        writeSettings("AmountRounds=6\nAmountCards=1\nCardDeck=80s\nRemoveMatch=1\n");
        window.open();
        QCOMPARE(window.pane->roundsStepper()->value(), 6);
        QCOMPARE(window.decks().currentText(), u"80s"_s);
        QVERIFY(window.child<QCheckBox>(u"removeMatch"_s).isChecked());
    }

    void settingsThatCannotBeWrittenHoldForTheProcess()
    {
        // The folder of the settings is a file, so that root cannot write either.
        PaneWindow window({}, [](StagePlatform& platform) {
            const QString folder = platform.home.filePath(u"config/Paircade"_s);
            QDir(folder).removeRecursively();
            writeFile(folder, {});
        });
        window.key(Qt::Key_Up);
        window.click(u"removeMatch"_s);
        window.close();
        window.open();
        QCOMPARE(window.pane->roundsStepper()->value(), 2);
        QVERIFY(window.child<QCheckBox>(u"removeMatch"_s).isChecked());
        QCOMPARE(window.game().totalRounds(), 2);
        QCOMPARE(stored("AmountRounds"), "nothing"_ba);
    }

    void thePaneIsAWindowOfTheGame()
    {
        PaneWindow window;
        QCOMPARE(window.pane->windowHandle()->transientParent(), window.window().windowHandle());
        QVERIFY(!window.pane->isModal());
        window.pane->setWindowTitle(u"a title"_s);
        QShowEvent fromIcon;
        QSpontaneKeyEvent::setSpontaneous(&fromIcon);
        qApp->notify(window.pane, &fromIcon);               // sendEvent() would make it one of ours
        QCOMPARE(window.pane->windowTitle(), u"a title"_s); // it was there all the time
        window.pane->hide();
        window.pane->show();
        QVERIFY(window.pane->windowTitle().isEmpty());
        QCOMPARE(window.pane->minimumSize(), window.pane->maximumSize());
        // A second choice from the menu brings the same window.
        window.choose(u"menu_preferences"_s);
        QCOMPARE(window.window().findChildren<Preferences*>().size(), 1);
        window.key(Qt::Key_Return); // presses nothing
        QVERIFY(window.pane->isVisible());

        QStringList stops;
        for (int stop = 0; stop < 7; ++stop) {
            stops << window.pane->focusWidget()->objectName();
            window.key(Qt::Key_Tab);
        }
        QCOMPARE(stops.join(u' '), u"roundsStepper cardsStepper removeMatch cardDeck_dropdown "
                                   "playSounds volumeSound launchInFullscreen"_s);
    }

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

QTEST_MAIN(PreferencesTest)
#include "preferences_test.moc"
