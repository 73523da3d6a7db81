// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The question for access to the photos, asked by the real window over a real
// folder of pictures and answered by mouse and keyboard.
#include "platform/user_folders.h"
#include "platform/widgets/access_question.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// Calls `act` on the dialog `name` once it is up and active; a failure ends the wait
/// for an answer.
void whenShown(const QString& name, const std::function<void(QWidget&)>& act, int tries = 200)
{
    QTimer::singleShot(20, qApp, [=] {
        QWidget* const dialog = QApplication::activeModalWidget();
        const bool isShown = dialog != nullptr && dialog->objectName() == name;
        if (isShown)
            dialog->activateWindow(); // as a window manager does
        if (isShown && dialog->isActiveWindow())
            act(*dialog);
        else if (tries > 0)
            whenShown(name, act, tries - 1);
        else
            QTest::qFail(qPrintable(name + u" does not come up"_s), __FILE__, __LINE__);
        while (QTest::currentTestFailed() && QApplication::activeModalWidget() != nullptr)
            QApplication::activeModalWidget()->close();
    });
}

const QString question = u"accessQuestion"_s;
const QString folderDialog = u"QFileDialog"_s;

/// A window whose library is the folder of its decks, so that each is an album.
class PhotoWindow : public GameWindow {
public:
    explicit PhotoWindow(const QString& deck)
        : GameWindow([&deck](TestPlatform& services) {
            services.defaults->setString(SettingsKeys::CardDeck, deck);
        })
    {
        usePlatform(&m_services);
    }

    [[nodiscard]] QString pictures() const { return resources() + u"/Cards"_s; }
    [[nodiscard]] QStringList& alertsShown() { return platform.alertLog.shown; }
    [[nodiscard]] static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    PhotoAccessStore store{photoAccessFile()};

private:
    AccessQuestion m_question{pictures()};
    PhotoLibrary m_library{store, &m_question, pictures(), PhotoLibrary::helperOfRunningProgram()};
    Platform m_services{*platform.defaults,     ::platform().bundle, platform.mainQueue,
                        platform.notifications, platform.audio,      m_library,
                        platform.alertLog,      platform.openedFiles};
};

} // namespace

class AccessQuestionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRoundAsksOnce_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("isDealt");
        QTest::newRow("all") << u"click"_s << QByteArray("status=authorized\n") << true;
        QTest::newRow("none") << u"letter"_s << QByteArray("status=denied\n") << false;
        QTest::newRow("a folder") << u"folder"_s
                                  << QByteArray("status=limited\nfolder=%/Cards/%C3%9Cber%20uns\n")
                                  << true;
        QTest::newRow("no folder, Escape") << u"cancel"_s << QByteArray("none") << false;
        QTest::newRow("closed") << u"close"_s << QByteArray("none") << false;
    }

    void aRoundAsksOnce()
    {
        QFETCH(const QString, way);
        QFETCH(QByteArray, stored);
        QFETCH(const bool, isDealt);
        PhotoWindow window(u"iPhoto"_s);
        makeDeck(window.resources(), u"Über uns"_s, 6);
        stored.replace("%/", window.resources().toUtf8() + '/');

        int questions = 0;
        const auto answer = [&](QWidget& dialog) {
            ++questions;
            // A letter or Return that led here is still held.
            qt_sendShortcutOverrideEvent(dialog.windowHandle(), 0, Qt::Key_A, Qt::AltModifier,
                                         u"a"_s, true);
            QTest::qWait(150); // a letter's button is shown pressed for a moment
            QCOMPARE(QApplication::activeModalWidget(), &dialog);
            GameWindow::repeatOn(dialog, Qt::Key_Return);
            QCOMPARE(QApplication::activeModalWidget(), &dialog);
            QCOMPARE(dialog.focusWidget()->objectName(), u"photo_question_folder"_s);
            QWindow* const handle = dialog.windowHandle();
            if (way == u"click"_s) {
                window.click(*dialog.findChild<QPushButton*>(u"photo_question_all"_s));
            } else if (way == u"letter"_s) {
                QTest::keyClick(handle, Qt::Key_N, Qt::AltModifier);
            } else if (way == u"close"_s) {
                dialog.close();
            } else {
                whenShown(folderDialog, [&](QWidget& choice) {
                    GameWindow::repeatOn(choice, Qt::Key_Return);
                    QCOMPARE(QApplication::activeModalWidget(), &choice);
                    if (way == u"folder"_s) {
                        choice.findChild<QLineEdit*>(u"fileNameEdit"_s)
                            ->setText(window.pictures() + u"/Über uns"_s);
                        QTest::keyClick(choice.windowHandle(), Qt::Key_Return);
                        return;
                    }
                    whenShown(question, [](QWidget& again) {
                        QTest::keyClick(again.windowHandle(), Qt::Key_Escape);
                    });
                    QTest::keyClick(choice.windowHandle(), Qt::Key_Escape);
                });
                QTest::keyClick(handle, Qt::Key_Return);
            }
        };
        whenShown(question, answer);
        window.startGame();
        QCOMPARE(questions, 1);
        QCOMPARE(window.contents(photoAccessFile()), stored);
        QCOMPARE(window.game().isGameActive(), isDealt);
        QTRY_COMPARE(window.alertsShown().size(), isDealt ? 0 : 2);
        if (!isDealt)
            QVERIFY(window.alertsShown()[0].startsWith(u"Paircade isn’t allowed"_s));
        QTRY_COMPARE(window.focused(), isDealt ? u"card0"_s : u"playerName"_s);
        QVERIFY(!window.contents(settingsFile()).contains("tatus"));
        if (stored == "none") {
            QCOMPARE(window.store.read().status, PhotoAuthorization::notDetermined);
            return;
        }
        struct stat file {};
        QCOMPARE(::stat(QFile::encodeName(photoAccessFile()).constData(), &file), 0);
        QCOMPARE(file.st_mode & 0777U, 0600U);

        // An answer is never asked for again.
        if (isDealt)
            window.child<QAction>(u"menu_end_game"_s).trigger();
        const bool isGone = way == u"folder"_s; // a folder that has gone holds nothing
        QDir(window.pictures() + u"/Über uns"_s).removeRecursively();
        window.game().startNewGame();
        QCOMPARE(window.game().isGameActive(), isDealt && !isGone);
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
        whenShown(question, [&](QWidget& dialog) {
            const std::int64_t elapsed = window.game().elapsedSeconds();
            window.platform.mainQueue.async([&hasRun] { hasRun = true; });
            for (const char* const name : {"menu_end_game", "menu_preferences", "menu_quit"})
                window.child<QAction>(QString::fromLatin1(name)).trigger();
            QAccessibleActionInterface* const reader =
                QAccessible::queryAccessibleInterface(&window.child<QPushButton>(u"endButton"_s))
                    ->actionInterface();
            reader->doAction(QAccessibleActionInterface::pressAction());
            QTest::qWait(1300);
            QVERIFY(!hasRun);
            QVERIFY(window.game().isGameActive());
            QVERIFY(window.window().findChildren<Preferences*>().isEmpty());
            QCOMPARE(window.game().elapsedSeconds(), elapsed);
            QCOMPARE(window.game().currentRound(), 2);
            QCOMPARE(window.text(u"headerText"_s), shown);
            window.click(*dialog.findChild<QPushButton*>(u"photo_question_all"_s));
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

        whenShown(question, [&](QWidget& dialog) {
            QVERIFY(!pane->isEnabled());
            window.click(*dialog.findChild<QPushButton*>(u"photo_question_all"_s));
        });
        window.click(button);
        QTRY_COMPARE(window.text(u"photosState"_s), u"All pictures"_s);
        QCOMPARE(button.text(), u"C&hange…"_s);
        QVERIFY(pane->cardDeck_dropdown()->findText(u"iPhoto: Cyberpunk"_s) > 0);
        QVERIFY(pane->isEnabled() && album.isChecked());
        QCOMPARE(pane->focusWidget(), &button);

        for (int time = 0; time < 2; ++time) { // made, then found
            window.click(album);
            window.click(album);
        }
        const QString folder = window.pictures() + u"/Paircade"_s;
        QVERIFY(QDir(folder).exists());
        QCOMPARE(window.platform.openedFiles.paths, (QStringList{folder, folder}));
        QVERIFY(QDir().rmdir(folder) && QFile::link(u"/"_s, folder));
        window.click(album);
        window.click(album);
        QCOMPARE(window.platform.defaults->integer(SettingsKeys::PaircadeAlbum), 1);
        QCOMPARE(window.platform.openedFiles.paths.size(), 2);

        // Escape leaves the answer as it was.
        whenShown(question,
                  [](QWidget& dialog) { QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape); });
        window.click(button);
        QCOMPARE(window.store.read().status, PhotoAuthorization::authorized);
    }

    void theStoreTrustsNoFile_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("folder"); // none: never asked
        QTest::newRow("empty") << QByteArray() << QByteArray();
        QTest::newRow("no end of line") << QByteArray("status=authorized") << QByteArray("all");
        QTest::newRow("a status that is no answer")
            << QByteArray("status=restricted\n") << QByteArray();
        QTest::newRow("limited to nothing") << QByteArray("status=limited\n") << QByteArray();
        QTest::newRow("a folder of any bytes")
            << QByteArray("status=limited\nfolder=/%FF%0A%25\n") << QByteArray("/\xff\n%");
        QTest::newRow("a relative folder")
            << QByteArray("status=limited\nfolder=home\n") << QByteArray();
        QTest::newRow("a folder cut short by its bytes")
            << QByteArray("status=limited\nfolder=/home%00/x\n") << QByteArray();
        QTest::newRow("no text") << QByteArray("\0\xff\n\n", 4) << QByteArray();
    }

    void theStoreTrustsNoFile()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const QByteArray, folder);
        const QTemporaryDir home;
        QFile file(home.filePath(u"PhotoAccess.conf"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) >= 0);
        file.close();
        PhotoAccessStore store(file.fileName());
        PhotoAccess expected;
        if (folder == "all")
            expected.status = PhotoAuthorization::authorized;
        else if (!folder.isEmpty())
            expected = {PhotoAuthorization::limited, folder};
        QVERIFY(store.read() == expected);

        // What was read can be written, and only that.
        QCOMPARE(store.write(expected), !folder.isEmpty());
        QVERIFY(PhotoAccessStore(file.fileName()).read() == expected);
    }

    void anAnswerThatCannotBeStoredHoldsMeanwhile()
    {
        const QTemporaryDir home;
        const QString pipe = home.filePath(u"PhotoAccess.conf"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        PhotoAccessStore store(pipe); // which nobody writes into
        QVERIFY(store.read() == PhotoAccess{});
        QVERIFY(!store.write({PhotoAuthorization::denied}));
        QCOMPARE(store.read().status, PhotoAuthorization::denied);
        QCOMPARE(PhotoAccessStore(pipe).read().status, PhotoAuthorization::notDetermined);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    AccessQuestionTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "access_question_test.moc"
