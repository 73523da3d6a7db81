// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences driven by mouse, wheel and keyboard.
#include "platform/user_folders.h"
#include "settings/preferences/preferences.h"
#include "stage/files.h"
#include "stage/game_window.h"
#include "support/results.h"
#include "support/rows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QSlider>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

void writeSettings(const QByteArray& lines)
{
    writeFile(settingsFile(), "[General]\n" + lines);
}

/// What stands under `key` in the file, as another program would find it.
QByteArray stored(const QByteArray& key)
{
    for (const QByteArray& line : contentsOf(settingsFile()).split('\n')) {
        if (line.startsWith(key + '='))
            return line.mid(key.size() + 1);
    }
    return "nothing";
}

/// The preferences over the real game, opened from the main window by their shortcut.
class PaneWindow : public GameWindow {
public:
    explicit PaneWindow(
        const QByteArray& settings = {},
        const std::function<void(StagePlatform&)>& prepare = [](StagePlatform&) {})
        : GameWindow([&](StagePlatform& services) {
            prepare(services);
            if (settings.isEmpty())
                return;
            writeSettings(settings);
            services.defaults->reread();
        })
    {
        open();
    }

    void open()
    {
        press(Qt::Key_Comma, Qt::ControlModifier);
        pane = window().findChild<Preferences*>();
        if (pane == nullptr || !QTest::qWaitForWindowActive(pane))
            qFatal("the preferences do not open");
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(pane->windowHandle(), key, modifiers);
    }
    void close()
    {
        key(Qt::Key_Escape);
        QTRY_VERIFY(pane.isNull());
        window().activateWindow(); // which a window manager does
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    QComboBox& decks() { return *pane->cardDeck_dropdown(); }

    QPointer<Preferences> pane{};
};

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anyStoredValueIsShownAndRepaired_data()
    {
        // Shown are rounds, layout, volume, and whether found pairs are cleared.
        const Rows<QByteArray, QList<int>, QByteArray> row{"settings", "shown", "deck"};
        row("good ones",
            "AmountRounds=7\nAmountCards=4\nVolumeSound=35\nRemoveMatch=1\nCardDeck=Kids\n"
            "LaunchInFullscreen=1\n",
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
        QCOMPARE(int(window.child<QCheckBox>(u"launchInFullscreen"_s).isChecked()), shown[3]);
        QCOMPARE(stored("AmountRounds"), QByteArray::number(shown[0]));
        QCOMPARE(stored("AmountCards"), QByteArray::number(shown[1]));
        QCOMPARE(stored("CardDeck"), deck);
        QCOMPARE(window.decks().currentText(), QString::fromUtf8(deck));
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
        PaneWindow window({}, [](StagePlatform& platform) {
            writeResults(platform, 1, {.playerName = u"Mia"_s, .amountCards = 6});
        });
        window.key(Qt::Key_Tab);
        for (int number = 1; const CardLayout& layout : cardLayouts) {
            QCOMPARE(window.game().bestTimeScores().empty(), &layout != &cardLayouts.back());
            QCOMPARE(stored("AmountCards"), QByteArray::number(number++));
            QCOMPARE(
                window.pane->cards_label()->text(),
                u"%1 × %2, %3 pairs"_s.arg(layout.columns).arg(layout.rows).arg(layout.pairs()));
            QTRY_COMPARE(window.contentSize(), GameWindow::sizeFor(layout));
            QCOMPARE(window.window().geometry().center(), window.screen().center());
            window.key(Qt::Key_Up);
        }
        QCOMPARE(window.text(u"bestTimes1"_s), u"1. Mia – 00:59"_s);
        window.key(Qt::Key_Tab, Qt::ShiftModifier);
        window.key(Qt::Key_Up);
        QVERIFY(window.game().bestTimeScores().empty()); // none of two rounds
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

        window.key(Qt::Key_V, Qt::AltModifier);
        window.key(Qt::Key_Home);
        QCOMPARE(stored("VolumeSound"), "0"_ba);
        window.wheel(volume, 1);
        QCOMPARE(stored("VolumeSound"), "10"_ba);

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
        window.startGame(); // reads the file; the open pane's steppers win
        QCOMPARE(stored("AmountRounds"), "2"_ba);
        QCOMPARE(stored("AmountCards"), "2"_ba);
        QCOMPARE(stored("CardDeck"), "70s"_ba);
        QCOMPARE(stored("Foreign"), "kept"_ba);

        // What others write from now on waits for the next game, the pane opened or not.
        writeSettings("AmountRounds=5\nAmountCards=5\nCardDeck=Kids\n");
        window.close();
        window.open();
        QCOMPARE(window.game().cardColumns(), 4);
        QVERIFY(window.decks().hasFocus());
        QCOMPARE(window.decks().currentText(), u"70s"_s);
        const auto preview = [&window] {
            const QWidget& strip = window.child<QWidget>(u"deckPreview"_s);
            const QPoint corner = strip.mapTo(window.pane, QPoint());
            const QPixmap pane = window.pane->screen()->grabWindow(window.pane->winId());
            return pane.copy(QRect(corner, strip.size())).toImage();
        };
        const QImage before = preview();
        window.key(Qt::Key_Down); // for the next round
        QTRY_VERIFY(preview() != before);
        QCOMPARE(stored("CardDeck"), "80s"_ba);

        // Meanwhile the steppers are locked.
        const QSpinBox& rounds = *window.pane->roundsStepper();
        QVERIFY(!rounds.isEnabled() && !window.pane->cardsStepper()->isEnabled());
        QCOMPARE(rounds.toolTip(), u"Can be changed when the game is over."_s);
        QCOMPARE(rounds.accessibleDescription(), rounds.toolTip());
        window.choose(u"menu_end_game"_s);
        QVERIFY(rounds.isEnabled() && window.pane->cardsStepper()->isEnabled());
        QVERIFY(rounds.toolTip().isEmpty());
        QCOMPARE(rounds.accessibleDescription(), u"2 rounds per game"_s);
        // What is still held when the pane goes starts nothing.
        window.close();
        window.repeat(Qt::Key_Return, u"\r"_s);
        QVERIFY(!window.game().isGameActive());
    }

    void thePaneIsAWindowOfTheGame()
    {
        PaneWindow window;
        QCOMPARE(window.pane->windowHandle()->transientParent(), window.window().windowHandle());
        QVERIFY(!window.pane->isModal());
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
        row("restricted", 1, {}, u"No access"_s);
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
        QCOMPARE(window.platform.photos.listed, albums.isEmpty() ? 0 : 1); // of one opening
        if (albums.isEmpty())
            return;

        // Any deck but that of all photos switches the album off.
        QCheckBox& album = *window.pane->paircade_album();
        QVERIFY(!album.isEnabled() && !album.isChecked());
        QCOMPARE(stored("PaircadeAlbum"), "0"_ba);
        window.decks().setFocus();
        QCOMPARE(window.child<QWidget>(u"deckPreview"_s).accessibleName(), u"Backs of cards"_s);
        window.key(Qt::Key_Down);
        QVERIFY(album.isEnabled() && !album.isChecked());
        window.click(album);
        QCOMPARE(stored("PaircadeAlbum"), "1"_ba);
        window.wheel(window.decks(), -1);
        // The wheel passes over the separator.
        QCOMPARE(stored("CardDeck"), "iPhoto: bee"_ba);
        QCOMPARE(stored("PaircadeAlbum"), "0"_ba);

        // Once the album is known to be gone, the choice goes with it.
        window.platform.photos.content = {.list = {}, .isComplete = false};
        window.choose(u"menu_preferences"_s);
        QCOMPARE(window.decks().count(), 7);
        QCOMPARE(window.decks().currentText(), u"iPhoto: bee"_s);
        window.pane->showMinimized();
        window.platform.photos.content.isComplete = true;
        window.choose(u"menu_preferences"_s);
        QCOMPARE(window.decks().currentText(), u"Cyberpunk"_s);
        QCOMPARE(stored("CardDeck"), "Cyberpunk"_ba);
        QCOMPARE(window.child<QWidget>(u"deckPreview"_s).accessibleName(),
                 u"Pictures of the deck: picture00, picture01, picture02, picture03, picture04"_s);
    }
};

QTEST_MAIN(PreferencesTest)
#include "preferences_test.moc"
