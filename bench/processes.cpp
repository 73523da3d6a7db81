// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Start, memory and waiting of the whole program, in processes of its own, in turn
// with a window that does nothing.
#include "platform/user_defaults.h"
#include "report.h"
#include "settings/settings_keys.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <map>

namespace {

struct Moment {
    double wall = 0;    ///< Milliseconds since the start.
    double cpu = 0;     ///< Milliseconds, all threads.
    double peak = 0;    ///< Kilobytes.
    double wakeUps = 0; ///< Of the main thread.
};
using Moments = std::map<QByteArray, Moment>;

struct Program {
    QString name{};
    QStringList arguments{};
};

Moments run(const Program& program, const QProcessEnvironment& environment)
{
    QProcess process;
    QProcessEnvironment own = environment;
    own.insert(QStringLiteral("PROBE_BEGIN"),
               QString::number(milliseconds(CLOCK_MONOTONIC), 'f', 3));
    process.setProcessEnvironment(own);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + u'/' + program.name, program.arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qFatal("%s has failed", qPrintable(program.name));
    Moments moments;
    for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
        const QByteArrayList words = line.split(' ');
        if (words.size() == 6 && words[0] == "probe")
            moments[words[1]] = {words[2].toDouble(), words[3].toDouble(), words[4].toDouble(),
                                 words[5].toDouble()};
    }
    if (!moments.contains("painted"))
        qFatal("%s has not told of its window", qPrintable(program.name));
    return moments;
}

void compareStarts(const Program& game, const Program& window, const QProcessEnvironment& home)
{
    constexpr int runs = 25;
    Samples gameWall, gameCpu, windowWall, windowCpu, firstWall;
    for (int i = 0; i <= runs; ++i) {
        for (const char* const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            QDir(home.value(QString::fromLatin1(name))).removeRecursively();
        const Moment first = run(game, home)["painted"];
        const Moment a = run(game, home)["painted"];
        const Moment b = run(window, home)["painted"];
        if (i == 0)
            continue; // fills the disk's cache
        firstWall.push_back(first.wall);
        gameWall.push_back(a.wall);
        gameCpu.push_back(a.cpu);
        windowWall.push_back(b.wall);
        windowCpu.push_back(b.cpu);
    }
    printRow("start to the first painted window", median(gameWall), "ms", 1.5, median(windowWall));
    printRow("the same, processor time", median(gameCpu), "ms", 1.5, median(windowCpu));
    printRow("first start, against the second", median(firstWall), "ms", 1.1, median(gameWall));
}

void compareRest(const std::string& state, double memoryTarget, const Program& game,
                 const Program& window, QProcessEnvironment home)
{
    const bool isPlaying = home.contains(QStringLiteral("PROBE_PLAYS"));
    home.insert(QStringLiteral("PROBE_SECONDS"),
                isPlaying ? QStringLiteral("0.1") : QStringLiteral("10"));
    const Moments played = run(game, home);
    home.insert(QStringLiteral("PROBE_SECONDS"), QStringLiteral("0.1"));
    const Moments floor = run(window, home);
    const Moment begin = played.at("rested");
    const Moment end = played.at("waited");
    printRow("peak memory, " + state, end.peak / 1024, "MB", memoryTarget,
             floor.at("waited").peak / 1024);
    if (!isPlaying) {
        printRow("processor time in 10 s, " + state, end.cpu - begin.cpu, "ms", 10);
        // One is the probe's own.
        printRow("wake-ups of the main thread in 10 s, " + state, end.wakeUps - begin.wakeUps,
                 "times", 1);
    }
}

void waitInGame(const std::string& sounds, const Program& game, QProcessEnvironment home)
{
    // Long enough to hold the closing of the sound device, which the last pair opened.
    home.insert(QStringLiteral("PROBE_SECONDS"), QStringLiteral("30"));
    const Moments moments = run(game, home);
    printRow("processor time in 30 s, running game, sounds " + sounds,
             moments.at("waited").cpu - moments.at("rested").cpu, "ms", 30);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    QProcessEnvironment home = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"CONFIG", "DATA"})
        home.insert(QStringLiteral("XDG_%1_HOME").arg(QString::fromLatin1(name)),
                    folder.filePath(QString::fromLatin1(name)));
    QDir(folder.path()).mkpath(QStringLiteral("CONFIG/Paircade"));
    UserDefaults defaults(folder.filePath(QStringLiteral("CONFIG/Paircade/Paircade.conf")));

    const Program game{QStringLiteral("bench_game")};
    Program window{QStringLiteral("bench_window"), {QStringLiteral("1")}};
    compareStarts(game, window, home);
    compareRest("start form", 1.6, game, window, home);
    defaults.reread();
    defaults.setInteger(SettingsKeys::AmountCards, 6);
    window.arguments = QStringList{QStringLiteral("6")};
    home.insert(QStringLiteral("PROBE_PLAYS"), QStringLiteral("1"));
    compareRest("running 8x5 game", 2.5, game, window, home);
    waitInGame("on", game, home);
    defaults.setInteger(SettingsKeys::PlaySounds, 0);
    waitInGame("off", game, home);
    return 0;
}
