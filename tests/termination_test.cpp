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
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdio>

namespace {

/// Starts a game, leaves by `way` and prints what that brought about.
int leaveBy(const QByteArray& way)
{
    QApplication::setQuitOnLastWindowClosed(false);
    AlertBox alerts;
    TestPlatform platform(&alerts);
    platform.useResources(platform.home.path());
    makeDeck(platform.home.path(), QStringLiteral("Cyberpunk"), 6);
    const Termination termination;
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    MemoryGame& game = delegate.contentView()->game();
    game.setPlayerName(QStringLiteral("Ann"));
    game.startNewGame();

    int posts = 0;
    platform.notifications.observe(GameStatusChangedNotification, &delegate, [&] { ++posts; });
    const bool isUnderAlert = way.startsWith("alert ");
    const bool isUnderQuestion = way.startsWith("choice ");
    AccessQuestion question(platform.home.path());
    if (isUnderAlert)
        game.showLocalizedAlert("ok");
    if (isUnderQuestion) {
        QTimer::singleShot(0, &delegate, [&] {
            if (question.askForPhotoAccess())
                std::abort();
        });
        QTimer::singleShot(100, &delegate, [] { // the choice of a folder above it
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
    }
    QTimer::singleShot(200, &delegate, [&] {
        const QWidget* const modal = QApplication::activeModalWidget();
        if ((isUnderAlert && qobject_cast<const QMessageBox*>(modal) == nullptr) ||
            (isUnderQuestion && qobject_cast<const QFileDialog*>(modal) == nullptr))
            std::abort();
        if (way.endsWith("SIGTERM"))
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
    std::printf("posts %d, GameIsActive %lld, entries %lld", posts,
                static_cast<long long>(platform.defaults->integer(SettingsKeys::GameIsActive)),
                static_cast<long long>(platform.readHighscoreFile().size()));
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
        QTest::newRow("alert SIGTERM") << 0;
        QTest::newRow("choice SIGTERM") << 0;
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
                 QStringLiteral("posts %1, GameIsActive 0, entries 0").arg(posts));
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
