// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences over the real game, driven by mouse, wheel and keyboard.
#include "platform/user_folders.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionSlider>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

void writeSettings(const QByteArray& lines)
{
    QFile file(settingsFile());
    if (!file.open(QIODevice::WriteOnly) || file.write("[General]\n" + lines) < 0)
        qFatal("the test cannot write the settings");
}

/// What stands under `key` in the file, as another program would find it.
QByteArray stored(const QByteArray& key)
{
    QFile file(settingsFile());
    if (!file.open(QIODevice::ReadOnly))
        return "no file";
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(key + '='))
            return line.mid(key.size() + 1);
    }
    return "no key";
}

/// The pane, opened from the main window by its shortcut.
class PaneWindow : public GameWindow {
public:
    explicit PaneWindow(
        const QByteArray& settings = {},
        const std::function<void(TestPlatform&)>& prepare = [](TestPlatform&) {})
        : GameWindow([&](TestPlatform& services) {
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
    /// One notch of the wheel, over the control.
    void wheel(QWidget& control, int notches)
    {
        const QPointF place = control.rect().center();
        QWheelEvent event(place, control.mapToGlobal(place), {}, {0, 120 * notches}, {}, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&control, &event);
    }
    QSlider& volume() { return child<QSlider>(u"volumeSound"_s); }
    QPoint volumeHandle()
    {
        QStyleOptionSlider option;
        option.initFrom(&volume());
        option.maximum = 100;
        option.sliderPosition = option.sliderValue = volume().value();
        const QRect handle = volume().style()->subControlRect(QStyle::CC_Slider, &option,
                                                              QStyle::SC_SliderHandle, &volume());
        return volume().mapTo(pane, handle.center());
    }
    QStringList menuTitles() const
    {
        QStringList titles;
        for (int item = 0; item < pane->cardDeck_dropdown()->count(); ++item)
            titles << pane->cardDeck_dropdown()->itemText(item);
        return titles;
    }

    QPointer<Preferences> pane{};
};

QByteArray record(int amountCards)
{
    return R"([{"id": "3f2504e0-4f89-41d3-9a0c-0305e82c3301", "gameMode": "solo", "playerName": "Mia",
                "elapsedSeconds": 9, "failedAttempts": 0, "amountRounds": 1, "amountCards": )" +
           QByteArray::number(amountCards) + "}]";
}

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anyStoredValueIsShownAndRepaired_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QList<int>>("shown");        // rounds, layout, volume, found pairs cleared
        QTest::addColumn<QByteArrayList>("repaired"); // rounds, layout, deck
        const QByteArray all = "AmountRounds=%\nAmountCards=%\nVolumeSound=%\nRemoveMatch=%\n";
        const auto same = [all](const QByteArray& value) {
            return QByteArray(all).replace("%", value) + "CardDeck=" + value + '\n';
        };
        using List = QByteArrayList;
        QTest::newRow("good ones")
            << QByteArray("AmountRounds=7\nAmountCards=4\nVolumeSound=35\nRemoveMatch=1\n"
                          "CardDeck=Kids\n")
            << QList<int>{7, 4, 35, 1} << List{"7", "4", "Kids"};
        QTest::newRow("none") << QByteArray("Foreign=1\n") << QList<int>{1, 1, 50, 0}
                              << List{"1", "1", "Cyberpunk"};
        QTest::newRow("too high") << same("150") << QList<int>{99, 6, 100, 0}
                                  << List{"99", "6", "Cyberpunk"};
        QTest::newRow("wrap to 1 when narrowed too early")
            << same("4294967297") << QList<int>{99, 6, 100, 0} << List{"99", "6", "Cyberpunk"};
        QTest::newRow("too low") << same("-3") << QList<int>{1, 1, 0, 0}
                                 << List{"1", "1", "Cyberpunk"};
        QTest::newRow("a deck with blanks")
            << same("\" 70s \"") << QList<int>{1, 1, 0, 0} << List{"1", "1", "Cyberpunk"};
        QTest::newRow("empty") << same("") << QList<int>{1, 1, 0, 0} << List{"1", "1", "Cyberpunk"};
        QTest::newRow("no numbers")
            << same("nan") << QList<int>{1, 1, 0, 0} << List{"1", "1", "Cyberpunk"};
        QTest::newRow("a list") << same("2, 3") << QList<int>{1, 1, 0, 0}
                                << List{"1", "1", "Cyberpunk"};
        QTest::newRow("a kind of another program")
            << same("@Variant(\\0\\0\\0\\x7f)") << QList<int>{1, 1, 0, 0}
            << List{"1", "1", "Cyberpunk"};
    }

    void anyStoredValueIsShownAndRepaired()
    {
        QFETCH(const QByteArray, settings);
        QFETCH(const QByteArrayList, repaired);
        PaneWindow window(settings);
        const QList<int> shown{window.pane->roundsStepper()->value(),
                               window.pane->cardsStepper()->value(), window.volume().value(),
                               int(window.child<QCheckBox>(u"removeMatch"_s).isChecked())};
        QTEST(shown, "shown");
        QCOMPARE(
            (QByteArrayList{stored("AmountRounds"), stored("AmountCards"), stored("CardDeck")}),
            repaired);
        QCOMPARE(window.pane->cardDeck_dropdown()->currentText(), QString::fromUtf8(repaired[2]));
        if (settings.contains("VolumeSound=150")) // nobody has touched it
            QCOMPARE(stored("VolumeSound"), QByteArray("150"));
    }

    void steppersAreStoredAtOnce_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<int>("act");
        QTest::addColumn<QByteArray>("rounds");
        QTest::addColumn<QString>("label");
        QTest::newRow("arrow key")
            << QByteArray("AmountRounds=1") << 0 << QByteArray("2") << u"2 rounds per game"_s;
        QTest::newRow("arrow key at the end")
            << QByteArray("AmountRounds=99") << 0 << QByteArray("99") << u"99 rounds per game"_s;
        QTest::newRow("wheel") << QByteArray("AmountRounds=2") << 1 << QByteArray("1")
                               << u"1 round per game"_s;
        QTest::newRow("typed") << QByteArray("AmountRounds=3") << 2 << QByteArray("12")
                               << u"12 rounds per game"_s;
        QTest::newRow("mouse") << QByteArray("AmountRounds=3") << 3 << QByteArray("4")
                               << u"4 rounds per game"_s;
    }

    void steppersAreStoredAtOnce()
    {
        QFETCH(const QByteArray, settings);
        QFETCH(const int, act);
        PaneWindow window(settings);
        QSpinBox& stepper = *window.pane->roundsStepper();
        QVERIFY(stepper.hasFocus());
        if (act == 0)
            window.key(Qt::Key_Up);
        else if (act == 1)
            window.wheel(stepper, -1);
        else if (act == 2)
            QTest::keyClicks(&stepper, u"12"_s);
        else
            QTest::mouseClick(&stepper, Qt::LeftButton, {}, {stepper.width() - 6, 6});
        QTEST(stored("AmountRounds"), "rounds");
        QTEST(window.pane->rounds_label()->text(), "label");
    }

    void theMainWindowFollowsTheLayout()
    {
        PaneWindow window("AmountCards=3\n",
                          [](TestPlatform& platform) { platform.writeHighscoreFile(record(4)); });
        QVERIFY(window.game().bestTimeScores().empty());
        window.key(Qt::Key_Tab);
        window.key(Qt::Key_Up);
        QCOMPARE(stored("AmountCards"), QByteArray("4"));
        QCOMPARE(window.pane->cards_label()->text(), u"6 × 4, 12 pairs"_s);
        QTRY_COMPARE(window.delegate.contentView()->size(), QSize(1320, 760));
        QCOMPARE(window.text(u"bestTimes1"_s), u"1. Mia – 00:09"_s);

        // In full screen only the board follows.
        window.window().toggleFullScreen();
        QTRY_VERIFY(window.window().isFullScreen());
        const QSize screen = window.window().size();
        window.wheel(*window.pane->cardsStepper(), 1);
        QCOMPARE(stored("AmountCards"), QByteArray("5"));
        QCOMPARE(window.window().size(), screen);
        QVERIFY(window.game().bestTimeScores().empty());
    }

    void withoutAMainWindowSettingsAreStored()
    {
        TestPlatform platform;
        AppDelegate notLaunched;
        for (MainWindowLink* const link :
             {static_cast<MainWindowLink*>(nullptr), static_cast<MainWindowLink*>(&notLaunched)}) {
            Preferences pane(link);
            pane.cardsStepper()->setValue(5);
            QCOMPARE(stored("AmountCards"), QByteArray("5"));
            pane.roundsStepper()->setValue(link == nullptr ? 8 : 9);
        }
        QCOMPARE(stored("AmountRounds"), QByteArray("9"));
        QCOMPARE(Preferences::cardLayoutLabel(7), u"7"_s);
        QCOMPARE(Preferences::cardLayoutLabel(0), u"0"_s);
    }

    void aRunningGameLocksTheSteppers()
    {
        PaneWindow window("AmountCards=1\nAmountRounds=2\nCardDeck=Cyberpunk\n");
        window.close();
        window.startGame();
        window.open();
        QSpinBox& rounds = *window.pane->roundsStepper();
        QVERIFY(!rounds.isEnabled() && !window.pane->cardsStepper()->isEnabled());
        QCOMPARE(rounds.toolTip(), u"Can be changed when the game is over."_s);
        QCOMPARE(rounds.accessibleDescription(), rounds.toolTip());

        // The deck is never locked: the cards stay, the next round is dealt from it.
        makeDeck(window.resources(), u"Kids"_s, 6);
        QFile::rename(window.resources() + u"/Cards/Kids/picture00.png"_s,
                      window.resources() + u"/Cards/Kids/kid.png"_s);
        QVERIFY(window.pane->cardDeck_dropdown()->hasFocus());
        window.key(Qt::Key_Down);
        QCOMPARE(stored("CardDeck"), QByteArray("Kids"));
        const auto isKid = [](const MemoryCard& card) { return card.image.name == u"kid"_s; };
        QVERIFY(std::ranges::none_of(window.game().cards(), isKid));
        for (int pair = 0; pair < 6; ++pair)
            window.clickPair();
        QTRY_COMPARE(window.game().currentRound(), 2);
        QVERIFY(std::ranges::any_of(window.game().cards(), isKid));

        window.child<QAction>(u"menu_end_game"_s).trigger();
        QVERIFY(rounds.isEnabled() && window.pane->cardsStepper()->isEnabled());
        QVERIFY(rounds.toolTip().isEmpty());
        QCOMPARE(rounds.accessibleDescription(), u"2 rounds per game"_s);
        QCOMPARE(stored("AmountRounds"), QByteArray("2"));
    }

    void theMenuOffersAlbumsOnce_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("albums");
        QTest::addColumn<QString>("photos");
        const QStringList albums{QString(), u"iPhoto: bee"_s, u"iPhoto: Cat"_s, u"iPhoto: Trip"_s};
        QTest::newRow("never asked") << 0 << QStringList() << u"Not asked yet"_s;
        QTest::newRow("restricted") << 1 << QStringList() << u"No access"_s;
        QTest::newRow("denied") << 2 << QStringList() << u"No access"_s;
        QTest::newRow("authorized") << 3 << albums << u"All pictures"_s;
        QTest::newRow("limited") << 4 << albums << u"Only “<Garden>”"_s;
    }

    void theMenuOffersAlbumsOnce()
    {
        QFETCH(const int, status);
        QFETCH(const QStringList, albums);
        PaneWindow window("CardDeck=80s\nPaircadeAlbum=1\n", [status](TestPlatform& platform) {
            platform.photos.status = PhotoAuthorization(status);
            platform.photos.folder = u"<Garden>"_s;
            platform.photos.content = {{u" Trip\n"_s, 3}, {u"Cat"_s, 1},  {std::nullopt, 5},
                                       {u"Empty"_s, 0},   {u"Trip"_s, 2}, {u"bee"_s, 1},
                                       {u" \n"_s, 4}};
        });
        QCOMPARE(window.menuTitles(), Preferences::baseCardDecks() + albums);
        QTEST(window.text(u"photosState"_s), "photos");
        QCOMPARE(window.child<QWidget>(u"photosButton"_s).isEnabled(), status != 1);
        QCOMPARE(window.pane->fetchAvailablePhotoAlbums().count(u"Trip"_s),
                 albums.isEmpty() ? 0 : 2);

        // Any deck but that of all photos switches the album off.
        QCheckBox& album = *window.pane->paircade_album();
        QVERIFY(!album.isEnabled() && !album.isChecked());
        QCOMPARE(stored("PaircadeAlbum"), QByteArray("0"));
        window.pane->cardDeck_dropdown()->setFocus();
        window.key(Qt::Key_Down);
        QVERIFY(album.isEnabled() && !album.isChecked());
        window.click(album);
        QCOMPARE(stored("PaircadeAlbum"), QByteArray("1"));
        window.wheel(*window.pane->cardDeck_dropdown(), -1);
        // The wheel passes over the separator.
        QCOMPARE(stored("CardDeck"), albums.isEmpty() ? "iPhoto" : "iPhoto: bee");
        QCOMPARE(stored("PaircadeAlbum"), albums.isEmpty() ? "1" : "0");
        if (albums.isEmpty())
            return;

        // The album goes, and with it the choice; what is chosen is not written again.
        QSignalSpy written(window.platform.defaults.get(), &UserDefaults::written);
        window.pane->rebuildCardDeckMenu();
        QCOMPARE(written.count(), 0);
        window.close();
        window.platform.photos.content.clear();
        window.open();
        QCOMPARE(window.pane->cardDeck_dropdown()->currentText(), u"Cyberpunk"_s);
        QCOMPARE(stored("CardDeck"), QByteArray("Cyberpunk"));
    }

    void checkBoxesAreStoredAtOnce_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<int>("letter");
        QTest::newRow("found pairs")
            << u"removeMatch"_s << QByteArray("RemoveMatch") << int(Qt::Key_C);
        QTest::newRow("sounds") << u"playSounds"_s << QByteArray("PlaySounds") << int(Qt::Key_P);
        QTest::newRow("full screen")
            << u"launchInFullscreen"_s << QByteArray("LaunchInFullscreen") << int(Qt::Key_S);
    }

    void checkBoxesAreStoredAtOnce()
    {
        QFETCH(const QString, box);
        QFETCH(const QByteArray, key);
        QFETCH(const int, letter);
        PaneWindow window(key + "=2\n"); // only 1 means on
        QVERIFY(!window.child<QCheckBox>(box).isChecked());
        window.click(window.child<QCheckBox>(box));
        QCOMPARE(stored(key), QByteArray("1"));
        window.key(Qt::Key(letter), Qt::AltModifier);
        QTRY_COMPARE(stored(key), QByteArray("0")); // shown pressed for a moment
    }

    void theVolumeIsStoredAndHeardWhenAChangeEnds()
    {
        PaneWindow window("VolumeSound=50\nPlaySounds=0\n", [](TestPlatform& platform) {
            const QString sound = u"/Sounds/card_done.mp3"_s;
            const QString shipped = *ApplicationBundle::ofRunningProgram().resourceFolder();
            QDir().mkpath(platform.home.filePath(u"Sounds"_s));
            QVERIFY(QFile::copy(shipped + sound, platform.home.path() + sound));
        });
        const QString recording = window.platform.home.filePath(u"recording.raw"_s);
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(recording));
        const auto isHeard = [&recording] {
            QFile file(recording);
            return file.open(QIODevice::ReadOnly) && file.readAll().count('\0') != file.size();
        };
        QWindow* const handle = window.pane->windowHandle();
        const QPoint from = window.volumeHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        for (int way = 10; way <= 70; way += 10)
            QTest::mouseMove(handle, from + QPoint(way, 0));
        QVERIFY(window.volume().value() > 60);
        QCOMPARE(window.text(u"volumeLabel"_s), QString::number(window.volume().value()) + u'%');
        QCOMPARE(stored("VolumeSound"), QByteArray("50"));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, from + QPoint(70, 0));
        QCOMPARE(stored("VolumeSound"), QByteArray::number(window.volume().value()));

        QSignalSpy written(window.platform.defaults.get(), &UserDefaults::written);
        QTest::mouseClick(handle, Qt::LeftButton, {}, window.volumeHandle());
        QCOMPARE(written.count(), 0);
        window.volume().setFocus();
        window.key(Qt::Key_Home);
        QCOMPARE(stored("VolumeSound"), QByteArray("0"));
        window.wheel(window.volume(), 1);
        QCOMPARE(stored("VolumeSound"), QByteArray("10"));
        QAccessible::queryAccessibleInterface(&window.volume())
            ->valueInterface()
            ->setCurrentValue(80);
        QCOMPARE(stored("VolumeSound"), QByteArray("80"));
        QVERIFY(!QFile::exists(recording)); // off: the device is not even opened

        window.click(window.child<QCheckBox>(u"playSounds"_s));
        QTRY_VERIFY(QFile::exists(recording));
        QVERIFY(!isHeard());
        window.volume().setFocus();
        window.key(Qt::Key_Left);
        QCOMPARE(stored("VolumeSound"), QByteArray("75"));
        QTRY_VERIFY(isHeard());
        qputenv("SDL_AUDIODRIVER", "dummy");
    }

    void whatAnotherProgramWritesMeanwhileIsKept()
    {
        PaneWindow window("AmountRounds=2\nAmountCards=2\nCardDeck=Kids\n");
        makeDeck(window.resources(), u"70s"_s, 24);
        writeSettings("AmountRounds=5\nAmountCards=5\nCardDeck=70s\nForeign=kept\n");
        QCOMPARE(window.pane->roundsStepper()->value(), 2);
        window.startGame(); // reads the file; the open pane's steppers win
        QCOMPARE(stored("AmountRounds"), QByteArray("2"));
        QCOMPARE(stored("AmountCards"), QByteArray("2"));
        QCOMPARE(stored("CardDeck"), QByteArray("70s"));
        QCOMPARE(stored("Foreign"), QByteArray("kept"));
        window.child<QAction>(u"menu_end_game"_s).trigger();

        // Closed, the pane keeps nothing from the past.
        window.close();
        writeSettings("AmountRounds=6\nAmountCards=1\nCardDeck=80s\nRemoveMatch=1\n");
        window.open();
        QCOMPARE(window.pane->roundsStepper()->value(), 6);
        QCOMPARE(window.pane->cardDeck_dropdown()->currentText(), u"80s"_s);
        QVERIFY(window.child<QCheckBox>(u"removeMatch"_s).isChecked());
    }

    void settingsThatCannotBeWrittenHoldForTheProcess()
    {
        // The folder of the settings is a file, so that root cannot write either.
        PaneWindow window({}, [](TestPlatform& platform) {
            const QString folder = platform.home.filePath(u"config/Paircade"_s);
            QDir(folder).removeRecursively();
            QFile file(folder);
            QVERIFY(file.open(QIODevice::WriteOnly));
        });
        window.key(Qt::Key_Up);
        window.click(window.child<QCheckBox>(u"removeMatch"_s));
        window.close();
        window.open();
        QCOMPARE(window.pane->roundsStepper()->value(), 2);
        QVERIFY(window.child<QCheckBox>(u"removeMatch"_s).isChecked());
        QCOMPARE(window.game().totalRounds(), 2);
        QCOMPARE(stored("AmountRounds"), QByteArray("no file"));
    }

    void thePaneIsAWindowOfTheGame()
    {
        PaneWindow window;
        QCOMPARE(window.pane->windowHandle()->transientParent(), window.window().windowHandle());
        QVERIFY(!window.pane->isModal());
        for (int time = 0; time < 2; ++time) {
            window.pane->setWindowTitle(u"a title"_s);
            window.pane->hide();
            window.pane->show();
            QVERIFY(window.pane->windowTitle().isEmpty());
        }
        QCOMPARE(window.pane->minimumSize(), window.pane->maximumSize());
        // A second choice from the menu brings the same window.
        window.child<QAction>(u"menu_preferences"_s).trigger();
        QCOMPARE(window.window().findChildren<Preferences*>().size(), 1);
        window.key(Qt::Key_Return); // presses nothing
        QVERIFY(window.pane->isVisible());
        window.close();
    }

    void aScreenReaderFindsEveryControl()
    {
        PaneWindow window("AmountCards=2\nCardDeck=Cyberpunk\n");
        const auto* const pane = QAccessible::queryAccessibleInterface(window.pane);
        QCOMPARE(pane->role(), QAccessible::Dialog);
        QCOMPARE(pane->text(QAccessible::Name), u"Preferences"_s);
        struct Expected {
            const char* object;
            QAccessible::Role role;
            QString name;
        };
        const std::vector<Expected> inOrderOfTab{
            {"roundsStepper", QAccessible::SpinBox, u"Rounds:"_s},
            {"cardsStepper", QAccessible::SpinBox, u"Card layout:"_s},
            {"removeMatch", QAccessible::CheckBox, u"Found pairs: Clear them off the board"_s},
            {"cardDeck_dropdown", QAccessible::ComboBox, u"Cyberpunk"_s},
            {"playSounds", QAccessible::CheckBox, u"Play sounds"_s},
            {"volumeSound", QAccessible::Slider, u"Volume:"_s},
            {"launchInFullscreen", QAccessible::CheckBox, u"Start in full screen"_s},
        };
        for (const Expected& expected : inOrderOfTab) {
            QWidget* const control = window.pane->focusWidget();
            QCOMPARE(control->objectName(), QString::fromLatin1(expected.object));
            const auto* const found = QAccessible::queryAccessibleInterface(control);
            QCOMPARE(found->role(), expected.role);
            QCOMPARE(found->text(QAccessible::Name), expected.name);
            QVERIFY(found->state().focusable && !found->state().disabled);
            window.key(Qt::Key_Tab);
        }
        QCOMPARE(window.pane->cardsStepper()->accessibleDescription(), u"4 × 4, 8 pairs"_s);
        const auto labels = QAccessible::queryAccessibleInterface(window.pane->cardDeck_dropdown())
                                ->relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels[0].first->text(QAccessible::Name), u"Deck:"_s);
        const auto* const photos =
            QAccessible::queryAccessibleInterface(&window.child<QWidget>(u"photosButton"_s));
        QVERIFY(photos->state().disabled);
        QVERIFY(photos->text(QAccessible::Description).startsWith(u"No access."_s));
        QCOMPARE(window.child<QWidget>(u"deckPreview"_s).accessibleName(),
                 u"Pictures of the deck: picture00, picture01, picture02, picture03, picture04"_s);

        // Photos are never read, whatever lies where a deck of theirs would lie.
        makeDeck(window.resources(), u"iPhoto"_s, 5);
        window.pane->cardDeck_dropdown()->setFocus();
        window.key(Qt::Key_End);
        QCOMPARE(stored("CardDeck"), QByteArray("iPhoto"));
        QCOMPARE(window.child<QWidget>(u"deckPreview"_s).accessibleName(), u"Backs of cards"_s);
    }
};

QTEST_MAIN(PreferencesTest)
#include "preferences_test.moc"
