// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The question for access to the photos, asked by the real window over a real
// folder of pictures and answered by mouse and keyboard.
#include "platform/user_folders.h"
#include "platform/widgets/access_dialog.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"
#include "stage/files.h"
#include "stage/game_window.h"
#include "support/broken_world.h"
#include "support/real_photos.h"
#include "support/rows.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// A window whose library is the folder of its decks, so that each is an album.
class PhotoWindow : public GameWindow {
public:
    explicit PhotoWindow(const QString& deck)
        : GameWindow([&deck](StagePlatform& services) {
            services.defaults->setString(SettingsKeys::CardDeck, deck);
        })
    {
    }

    [[nodiscard]] QString pictures() const { return resources() + u"/Cards"_s; }
    [[nodiscard]] PhotoAccess access() const { return platform.photoAccess.read(); }
    void answerAll(AccessDialog& dialog)
    {
        click(*dialog.findChild<QPushButton*>(u"photo_question_all"_s));
    }

private:
    RealPhotos m_photos{platform, platform.alertLog, pictures()};
};

} // namespace

class AccessQuestionTest : public QObject {
    Q_OBJECT

public:
    static void initMain() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

private Q_SLOTS:
    void aRoundAsksOnce_data()
    {
        const Rows<QByteArray, bool> row{"stored", "isDealt"};
        row("all by mouse", "status=authorized\n", true);
        row("none by letter", "status=denied\n", false);
        row("folder", "status=limited\nfolder=%/Cards/%C3%9Cber%20uns\n", true);
        row("no folder, Escape", "", false);
        row("closed", "", false);
    }

    void aRoundAsksOnce()
    {
        const QByteArray way = QTest::currentDataTag();
        QFETCH(QByteArray, stored);
        QFETCH(const bool, isDealt);
        PhotoWindow window(u"iPhoto"_s);
        makeDeck(window.resources(), u"Über uns"_s, 6);
        stored.replace("%/", window.resources().toUtf8() + '/');

        int questions = 0;
        whenShown<AccessDialog>([&](AccessDialog& dialog) {
            ++questions;
            // A letter or Return that led here is still held.
            qt_sendShortcutOverrideEvent(dialog.windowHandle(), 0, Qt::Key_A, Qt::AltModifier,
                                         u"a"_s, true);
            QTest::qWait(150); // a letter's button is shown pressed for a moment
            QCOMPARE(QApplication::activeModalWidget(), &dialog);
            GameWindow::repeatOn(dialog, Qt::Key_Return);
            QCOMPARE(QApplication::activeModalWidget(), &dialog);
            QCOMPARE(dialog.focusWidget()->objectName(), u"photo_question_folder"_s);
            if (way == "all by mouse")
                return window.answerAll(dialog);
            if (way == "closed")
                return void(dialog.close());
            if (way == "none by letter")
                return QTest::keyClick(dialog.windowHandle(), Qt::Key_N, Qt::AltModifier);
            whenShown<QFileDialog>([&](QFileDialog& choice) {
                GameWindow::repeatOn(choice, Qt::Key_Return);
                QCOMPARE(QApplication::activeModalWidget(), &choice);
                if (way == "folder") {
                    choice.findChild<QLineEdit*>(u"fileNameEdit"_s)
                        ->setText(window.pictures() + u"/Über uns"_s);
                    return QTest::keyClick(choice.windowHandle(), Qt::Key_Return);
                }
                whenShown<AccessDialog>([](AccessDialog& again) {
                    QTest::keyClick(again.windowHandle(), Qt::Key_Escape);
                });
                QTest::keyClick(choice.windowHandle(), Qt::Key_Escape);
            });
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
        });
        window.startGame();
        QCOMPARE(questions, 1);
        QCOMPARE(contentsOf(photoAccessFile()), stored);
        QCOMPARE(window.game().isGameActive(), isDealt);
        const QStringList& alerts = window.platform.alertLog.shown;
        QTRY_COMPARE(alerts.size(), isDealt ? 0 : 2);
        if (!isDealt)
            QVERIFY(alerts[0].startsWith(u"Paircade isn’t allowed"_s));
        QTRY_COMPARE(window.focused(), isDealt ? u"card0"_s : u"playerName"_s);
        QVERIFY(!contentsOf(settingsFile()).contains("tatus"));
        if (stored.isEmpty()) {
            QCOMPARE(window.access().status, PhotoAuthorization::notDetermined);
            return;
        }
        QVERIFY(!(QFile::permissions(photoAccessFile()) & (QFile::ReadGroup | QFile::ReadOther)));

        // An answer is never asked for again; a folder that has gone holds nothing.
        window.game().endGame();
        QDir(window.pictures() + u"/Über uns"_s).removeRecursively();
        window.game().startNewGame();
        QCOMPARE(window.game().isGameActive(), isDealt && way != "folder");
    }

    void theGameStandsStillMeanwhile()
    {
        PhotoWindow window(u"Cyberpunk"_s);
        window.platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        window.startGame();
        window.platform.defaults->setString(SettingsKeys::CardDeck, u"iPhoto"_s);
        for (int pair = 0; pair < 5; ++pair)
            window.clickPair();
        const QString shown = window.text(u"headerText"_s);

        bool hasRun = false;
        whenShown<AccessDialog>([&](AccessDialog& dialog) {
            const std::int64_t elapsed = window.game().elapsedSeconds();
            window.platform.mainQueue.async([&hasRun] { hasRun = true; });
            for (const QString& item : {u"menu_end_game"_s, u"menu_preferences"_s, u"menu_quit"_s})
                window.choose(item);
            QAccessible::queryAccessibleInterface(&window.child<QWidget>(u"endButton"_s))
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::pressAction());
            QTest::qWait(1300);
            QVERIFY(!hasRun && window.game().isGameActive());
            QVERIFY(window.window().findChildren<Preferences*>().isEmpty());
            QCOMPARE(window.game().elapsedSeconds(), elapsed);
            QCOMPARE(window.game().currentRound(), 2);
            QCOMPARE(window.text(u"headerText"_s), shown);
            window.answerAll(dialog);
        });
        window.clickPair();
        QTRY_VERIFY(hasRun);
        QVERIFY(window.text(u"headerText"_s) != shown);
        QVERIFY(window.child<QAction>(u"menu_end_game"_s).isEnabled());
        QVERIFY(!window.child<QAction>(u"menu_new_game"_s).isEnabled());
        QTRY_VERIFY(window.game().elapsedSeconds() > 0);
    }

    void thePreferencesAskAgain()
    {
        PhotoWindow window(u"iPhoto"_s);
        window.press(Qt::Key_Comma, Qt::ControlModifier);
        const QPointer<Preferences> pane = window.window().findChild<Preferences*>();
        QVERIFY(pane && QTest::qWaitForWindowActive(pane));
        auto& button = window.child<QPushButton>(u"photosButton"_s);
        auto& album = window.child<QCheckBox>(u"paircade_album"_s);
        QCOMPARE(window.text(u"photosState"_s), u"Not asked yet"_s);
        window.click(album); // without access nothing is made
        QVERIFY(album.isChecked() && !QFile::exists(window.pictures() + u"/Paircade"_s));

        whenShown<AccessDialog>([&](AccessDialog& dialog) {
            QVERIFY(!pane->isEnabled());
            window.answerAll(dialog);
        });
        window.click(button);
        QTRY_COMPARE(window.text(u"photosState"_s), u"All pictures"_s);
        QCOMPARE(button.text(), u"C&hange…"_s);
        QVERIFY(pane->cardDeck_dropdown()->findText(u"iPhoto: Cyberpunk"_s) > 0);
        QVERIFY(pane->isEnabled() && album.isChecked());
        QCOMPARE(pane->focusWidget(), &button);

        for (int time = 0; time < 4; ++time) // made, then found
            window.click(album);
        const QString folder = window.pictures() + u"/Paircade"_s;
        QVERIFY(QDir(folder).exists());
        QCOMPARE(window.platform.openedFiles.paths, (QStringList{folder, folder}));

        // Escape leaves the answer as it was.
        whenShown<AccessDialog>(
            [](AccessDialog& dialog) { QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape); });
        window.click(button);
        QCOMPARE(window.access().status, PhotoAuthorization::authorized);

        delete pane.data();
        window.choose(u"menu_preferences"_s); // to open them changes nothing
        QVERIFY(window.child<QCheckBox>(u"paircade_album"_s).isChecked());
        QCOMPARE(window.platform.openedFiles.paths.size(), 2);
    }

    void theStoreTrustsNoFile()
    {
        const QTemporaryDir home;
        const QString file = home.filePath(u"PhotoAccess.conf"_s);
        for (const QByteArray& contents :
             {"status=restricted\n"_ba, "status=limited\n"_ba, "status=limited\nfolder=home\n"_ba,
              "status=limited\nfolder=/home%00/x\n"_ba, QByteArray("\0\xff\n\n", 4)}) {
            writeFile(file, contents);
            QVERIFY2(PhotoAccessStore(file).read() == PhotoAccess{}, contents.constData());
        }

        QFile::remove(file);
        makePipe(file); // which nobody writes into
        PhotoAccessStore store(file);
        QVERIFY(store.read() == PhotoAccess{});
        // An answer that cannot be stored holds meanwhile.
        QVERIFY(!store.write({PhotoAuthorization::denied}));
        QCOMPARE(store.read().status, PhotoAuthorization::denied);
        QVERIFY(PhotoAccessStore(file).read() == PhotoAccess{});
    }
};

QTEST_MAIN(AccessQuestionTest)
#include "access_question_test.moc"
