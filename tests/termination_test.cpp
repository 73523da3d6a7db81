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
#include "support/rows.h"
#include "support/run_again.h"
#include "ui/content_view.h"

#include <QAction>
#include <QFileDialog>
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
    const auto start = [&game] { game.startNewGame(); };
    if (under == "two alerts and a start") {
        game.showLocalizedAlert("ok");
        game.showLocalizedAlert("ok");
        after(50, start);
    } else if (under == "report's alert over a miss") {
        miss(game);
        QDir().mkpath(platform.home.filePath(u"data/Paircade/highscores.html/x"_s));
        choose("menu_open_highscores_html");
    } else if (under.startsWith("photo question")) {
        platform.defaults->setString(SettingsKeys::CardDeck, u"iPhoto"_s);
        after(20, start);
        if (under.endsWith("folder")) // the choice of one above it
            after(120, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    } else if (under == "about box" || under == "preferences") {
        choose(under == "about box" ? "menu_about" : "menu_preferences");
    } else if (under == "half a turn") {
        after(150, [&game] { flip(game, 0); });
    }
}

/// Starts a game, leaves by `way` under what stands before the colon, if anything, and
/// prints what that brought about.
int leaveBy(const QStringList& arguments)
{
    const QByteArray fullWay = arguments.constFirst().toUtf8();
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
    platform.notifications.observe(gameStatusChanged, &delegate, [&] { ++posts; });
    bringUp(under, delegate, platform);
    QTimer::singleShot(200, &delegate, [&] {
        posts = 0;
        const QWidget* const modal = QApplication::activeModalWidget();
        const bool awaitsModal =
            under.contains("alert") || under.contains("box") || under.contains("photo");
        if ((modal != nullptr) != awaitsModal ||
            (qobject_cast<const QFileDialog*>(modal) != nullptr) != under.endsWith("folder"))
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
    const auto isActive = int(platform.defaults->integer(SettingsKeys::GameIsActive));
    std::printf("posts %d, GameIsActive %d\n", posts, isActive);
    return status;
}

} // namespace

class TerminationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noWayOutLeavesARunningGame_data()
    {
        const Rows<int> row{"posts"};
        for (const char* const way :
             {"menu", "SIGTERM", "SIGINT", "SIGHUP", "session", "two alerts and a start: SIGTERM",
              "report's alert over a miss: SIGTERM", "about box: SIGTERM", "preferences: SIGTERM",
              "preferences: keys", "half a turn: SIGTERM"})
            row(way, 0);
        // Without an answer the round that asked is not dealt, which is announced, too.
        for (const char* const way : {"close", "preferences: close", "photo question: SIGTERM",
                                      "photo question, choosing a folder: SIGTERM"})
            row(way, 1);
    }

    void noWayOutLeavesARunningGame()
    {
        QFETCH(int, posts);
        const QString way = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(runAgain({way}).lines.join(),
                 "posts " + QByteArray::number(posts) + ", GameIsActive 0");
    }
};

int main(int argc, char* argv[])
{
    return runTests<QApplication, TerminationTest>(argc, argv, leaveBy);
}
#include "termination_test.moc"
