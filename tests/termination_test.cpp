// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Every way out of the program, in a process of its own: closing the window is
// announced once, all others never, and no game is left marked as running.
#include "app/app_delegate.h"
#include "app/main_window.h"
#include "app/termination.h"
#include "game/game_status.h"
#include "platform/widgets/alert_box.h"
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "support/real_photos.h"
#include "ui/content_view.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Brings up what `under` names, as the player would find it when the end comes.
void bringUp(const QByteArray& under, AppDelegate& delegate, StagePlatform& platform)
{
    MemoryGame& game = delegate.contentView()->game();
    const auto choose = [&delegate](const char* item) {
        auto* const action = delegate.window()->findChild<QAction*>(QString::fromLatin1(item));
        QTimer::singleShot(0, action, &QAction::trigger);
    };
    const auto after = [&game](int milliseconds, const std::function<void()>& act) {
        QTimer::singleShot(milliseconds, &game, act);
    };
    if (under == "alert") {
        game.showLocalizedAlert("ok");
    } else if (under == "two alerts and a start") {
        game.showLocalizedAlert("ok");
        game.showLocalizedAlert("ok");
        after(50, [&game] { game.startNewGame(); });
    } else if (under == "report's alert over a miss") {
        miss(game);
        QDir().mkpath(platform.home.filePath(u"data/Paircade/highscores.html/x"_s));
        choose("menu_open_highscores_html");
    } else if (under.startsWith("photo question")) {
        platform.defaults->setString(SettingsKeys::CardDeck, u"iPhoto"_s);
        after(20, [&game] { game.startNewGame(); });
        if (under.endsWith("folder")) // the choice of one above it
            after(120, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    } else if (under == "about box") {
        choose("menu_about");
    } else if (under == "preferences") {
        choose("menu_preferences");
    } else if (under == "open menu") {
        auto* const menu = delegate.window()->findChild<QMenu*>(u"menu_game"_s);
        after(0, [menu] { menu->exec(); });
    } else if (under == "half a turn") {
        after(150, [&game] { flip(game, 0); });
    } else if (under == "won board") {
        after(100, [&game] {
            while (game.isGameActive())
                findPair(game);
        });
    }
}

/// Starts a game, leaves by `way` under what stands before the colon, if anything, and
/// prints what that brought about.
int leaveBy(const QByteArray& fullWay)
{
    const QByteArray way = fullWay.split(' ').constLast(); // one word
    const QByteArray under = fullWay.chopped(way.size()).replace(": ", "");
    QApplication::setQuitOnLastWindowClosed(false);
    AlertBox alerts;
    StagePlatform platform(&alerts);
    platform.useResources(platform.home.path());
    makeDeck(platform.home.path(), u"Cyberpunk"_s, 6);
    const RealPhotos photos(platform, alerts, platform.home.path());
    const Termination termination;
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    MemoryGame& game = delegate.contentView()->game();
    game.setPlayerName(u"Ann"_s);
    game.startNewGame();

    int posts = 0;
    platform.notifications.observe(GameStatusChangedNotification, &delegate, [&] { ++posts; });
    bringUp(under, delegate, platform);
    QTimer::singleShot(200, &delegate, [&] {
        posts = 0;
        const QWidget* const modal = QApplication::activeModalWidget();
        const bool awaitsModal =
            under.contains("alert") || under.contains("box") || under.contains("photo");
        if ((modal != nullptr) != awaitsModal ||
            (qobject_cast<const QFileDialog*>(modal) != nullptr) != under.endsWith("folder") ||
            (QApplication::activePopupWidget() != nullptr) != (under == "open menu"))
            std::abort();
        if (way == "SIGTERM")
            (void)std::raise(SIGTERM);
        else if (way == "SIGINT")
            (void)std::raise(SIGINT);
        else if (way == "SIGHUP") // the terminal goes, and first with it what reads our output
            (void)(std::raise(SIGPIPE) + std::raise(SIGHUP));
        else if (way == "menu")
            delegate.window()->findChild<QAction*>(u"menu_quit"_s)->trigger();
        else if (way == "keys")
            QTest::keyClick(QApplication::activeWindow()->windowHandle(), Qt::Key_Q,
                            Qt::ControlModifier);
        else if (way == "session")
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
        QTest::newRow("SIGHUP") << 0;
        QTest::newRow("session") << 0;
        for (const char* const under :
             {"alert", "two alerts and a start", "report's alert over a miss", "about box",
              "preferences", "open menu", "half a turn", "won board"})
            QTest::addRow("%s: SIGTERM", under) << 0;
        // No answer, so that the round that asked is not dealt, which is announced.
        QTest::newRow("photo question: SIGTERM") << 1;
        QTest::newRow("photo question, choosing a folder: SIGTERM") << 1;
        QTest::newRow("preferences: close") << 1;
        QTest::newRow("preferences: keys") << 0;
        QTest::newRow("half a turn: close") << 1;
        QTest::newRow("won board: menu") << 0;
    }

    void noWayOutLeavesARunningGame()
    {
        QFETCH(int, posts);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--leave-by"_s, QString::fromLatin1(QTest::currentDataTag())});
        QVERIFY(child.waitForFinished(20'000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()),
                 u"posts %1, GameIsActive 0, entries %2"_s.arg(posts).arg(
                     QByteArray(QTest::currentDataTag()).startsWith("won") ? 1 : 0));
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
