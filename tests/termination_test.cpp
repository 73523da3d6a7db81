// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Every way out of the program, in a process of its own: closing the window is
// announced once, all others never, and no game is left marked as running.
#include "app/app_delegate.h"
#include "app/main_window.h"
#include "app/termination.h"
#include "game/game_status.h"
#include "platform/widgets/access_question.h"
#include "platform/widgets/alert_box.h"
#include "settings/settings_keys.h"
#include "support/play.h"
#include "support/test_platform.h"
#include "ui/content_view.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdio>

namespace {

/// Brings up what `under` names, as the player would find it when the end comes.
void bringUp(const QByteArray& under, AppDelegate& delegate, TestPlatform& platform)
{
    MemoryGame& game = delegate.contentView()->game();
    const auto choose = [&delegate](const char* item) {
        auto* const action = delegate.window()->findChild<QAction*>(QString::fromLatin1(item));
        QTimer::singleShot(0, action, &QAction::trigger);
    };
    if (under == "alert") {
        game.showLocalizedAlert("ok");
    } else if (under == "two alerts and a start") {
        game.showLocalizedAlert("ok");
        game.showLocalizedAlert("ok");
        QTimer::singleShot(50, &game, &MemoryGame::startNewGame);
    } else if (under == "report's alert over a miss") {
        miss(game);
        QDir().mkpath(platform.home.filePath(QStringLiteral("data/Paircade/highscores.html/x")));
        choose("menu_open_highscores_html");
    } else if (under.startsWith("photo question")) {
        platform.defaults->setString(SettingsKeys::CardDeck, QStringLiteral("iPhoto"));
        QTimer::singleShot(20, &game, &MemoryGame::startNewGame);
        if (under.endsWith("folder")) { // the choice of one above it
            QTimer::singleShot(120, &game, [] {
                QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
            });
        }
    } else if (under == "about box") {
        choose("menu_about");
    } else if (under == "preferences") {
        choose("menu_preferences");
    } else if (under == "open menu") {
        auto* const menu = delegate.window()->findChild<QMenu*>(QStringLiteral("menu_game"));
        QTimer::singleShot(0, menu, [menu] { menu->exec(); });
    } else if (under == "half a turn") {
        QTimer::singleShot(150, &game, [&game] { flip(game, 0); });
    } else if (under == "won board") {
        QTimer::singleShot(100, &game, [&game] {
            while (game.isGameActive())
                findPair(game);
        });
    }
}

/// Starts a game, leaves by `way` under what stands before the colon, if anything, and
/// prints what that brought about.
int leaveBy(const QByteArray& fullWay)
{
    const QByteArray way = fullWay.mid(fullWay.indexOf(": ") < 0 ? 0 : fullWay.indexOf(": ") + 2);
    const QByteArray under = fullWay.chopped(way.size()).replace(": ", "");
    QApplication::setQuitOnLastWindowClosed(false);
    AlertBox alerts;
    TestPlatform platform(&alerts);
    platform.useResources(platform.home.path());
    makeDeck(platform.home.path(), QStringLiteral("Cyberpunk"), 6);
    AccessQuestion question(platform.home.path());
    PhotoLibrary photos(platform.photoAccess, &question, platform.home.path(),
                        PhotoLibrary::helperOfRunningProgram());
    const Platform services{*platform.defaults,
                            ::platform().bundle,
                            platform.mainQueue,
                            platform.notifications,
                            platform.audio,
                            photos,
                            alerts,
                            platform.openedFiles};
    usePlatform(&services);
    const Termination termination;
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    MemoryGame& game = delegate.contentView()->game();
    game.setPlayerName(QStringLiteral("Ann"));
    game.startNewGame();

    int posts = 0;
    platform.notifications.observe(GameStatusChangedNotification, &delegate, [&] { ++posts; });
    bringUp(under, delegate, platform);
    QTimer::singleShot(200, &delegate, [&] {
        posts = 0;
        const QWidget* const modal = QApplication::activeModalWidget();
        const bool isModal = modal != nullptr;
        if (isModal !=
                (under.contains("alert") || under == "about box" || under.startsWith("photo")) ||
            (under.endsWith("folder") != (qobject_cast<const QFileDialog*>(modal) != nullptr)) ||
            (QApplication::activePopupWidget() != nullptr) != (under == "open menu"))
            std::abort();
        if (way == "SIGTERM")
            (void)std::raise(SIGTERM);
        else if (way == "SIGINT")
            (void)std::raise(SIGINT);
        else if (way == "SIGPIPE then SIGHUP")
            (void)(std::raise(SIGPIPE) + std::raise(SIGHUP));
        else if (way == "menu")
            delegate.window()->findChild<QAction*>(QStringLiteral("menu_quit"))->trigger();
        else if (way == "end of the session")
            QCoreApplication::quit();
        else
            delegate.window()->close();
    });
    QTimer::singleShot(5000, [] { std::abort(); });
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    std::printf("posts %d, GameIsActive %lld, entries %d", posts,
                static_cast<long long>(platform.defaults->integer(SettingsKeys::GameIsActive)),
                int(platform.readHighscoreFile().count("\"id\"")));
    std::fflush(stdout);
    return status;
}

} // namespace

class TerminationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noWayOutLeavesARunningGame_data()
    {
        QTest::addColumn<int>("posts");
        QTest::newRow("close") << 1;
        QTest::newRow("menu") << 0;
        QTest::newRow("SIGTERM") << 0;
        QTest::newRow("SIGINT") << 0;
        QTest::newRow("SIGPIPE then SIGHUP") << 0;
        QTest::newRow("end of the session") << 0;
        for (const char* const under :
             {"alert", "two alerts and a start", "report's alert over a miss", "about box",
              "preferences", "open menu", "half a turn", "won board"})
            QTest::addRow("%s: SIGTERM", under) << 0;
        // No answer, so that the round that asked is not dealt, which is announced.
        QTest::newRow("photo question: SIGTERM") << 1;
        QTest::newRow("photo question, choosing a folder: SIGTERM") << 1;
        QTest::newRow("preferences: close") << 1;
        QTest::newRow("half a turn: close") << 1;
        QTest::newRow("won board: menu") << 0;
    }

    void noWayOutLeavesARunningGame()
    {
        QFETCH(int, posts);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--leave-by"), QString::fromLatin1(QTest::currentDataTag())});
        QVERIFY(child.waitForFinished(20'000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()),
                 QStringLiteral("posts %1, GameIsActive 0, entries %2")
                     .arg(posts)
                     .arg(QByteArray(QTest::currentDataTag()).startsWith("won") ? 1 : 0));
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--leave-by") == 0)
        return leaveBy(argv[2]);
    TerminationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "termination_test.moc"
