// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stage/files.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <vector>

/// What a process printed, and what SDL's disk driver heard of it.
struct Run {
    QByteArrayList lines{};
    bool isDeviceOpened = false;
    std::vector<int> heard{}; ///< The samples of the left channel.
};

/// Runs this program once more, for what runTests() does with `arguments`: SDL takes its
/// driver once, and a program ends once.
inline Run runAgain(const QStringList& arguments, const QString& driver = QStringLiteral("disk"))
{
    const QTemporaryDir folder;
    const QString recording = folder.filePath(QStringLiteral("recording.raw"));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SDL_AUDIODRIVER"), driver);
    environment.insert(QStringLiteral("SDL_DISKAUDIOFILE"), recording);
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(),
                QStringList{QStringLiteral("--again")} + arguments);
    if (!child.waitForFinished(20'000) || child.exitStatus() != QProcess::NormalExit ||
        child.exitCode() != 0)
        QTest::qFail("the process does not end well", __FILE__, __LINE__);

    Run run{child.readAllStandardOutput().split('\n'), QFile::exists(recording)};
    run.lines.removeLast();
    const QByteArray samples = contentsOf(recording);
    for (qsizetype i = 0; i + 4 <= samples.size(); i += 4)
        run.heard.push_back(qFromLittleEndian<qint16>(samples.constData() + i));
    return run;
}

/// What main() does: runs the tests, or `again` if this run is one of runAgain().
template <class Application, class Test>
int runTests(int argc, char** argv, int (*again)(const QStringList& arguments))
{
    Application application(argc, argv);
    if (QCoreApplication::arguments().value(1) == QLatin1String("--again"))
        return again(QCoreApplication::arguments().mid(2));
    Test test;
    return QTest::qExec(&test, argc, argv);
}
