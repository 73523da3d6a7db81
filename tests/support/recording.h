// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <vector>

/// What a process printed, and what SDL's disk driver heard of it.
struct Recording {
    QByteArrayList lines{};
    bool isMade = false;     ///< The device was opened.
    std::vector<int> left{}; ///< The samples of the left channel.
};

/// Runs this program once more with `arguments`, since SDL takes its driver once.
inline Recording recordingOf(const QStringList& arguments,
                             const QString& driver = QStringLiteral("disk"))
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("recording.raw")));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SDL_AUDIODRIVER"), driver);
    environment.insert(QStringLiteral("SDL_DISKAUDIOFILE"), file.fileName());
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    if (!child.waitForFinished(20'000) || child.exitStatus() != QProcess::NormalExit ||
        child.exitCode() != 0)
        QTest::qFail("the process does not end well", __FILE__, __LINE__);

    Recording recording;
    recording.lines = child.readAllStandardOutput().split('\n');
    recording.lines.removeLast();
    recording.isMade = file.open(QIODevice::ReadOnly);
    const QByteArray raw = recording.isMade ? file.readAll() : QByteArray();
    for (qsizetype i = 0; i + 4 <= raw.size(); i += 4)
        recording.left.push_back(qFromLittleEndian<qint16>(raw.constData() + i));
    return recording;
}
