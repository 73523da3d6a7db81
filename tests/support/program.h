// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stage/files.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <csignal>

/// The program that was built, in a home of its own that may be shared.
class Program {
public:
    /// Starts `program`; its folders are config, data and runtime in `home`.
    explicit Program(const QString& home, const QString& program = {})
    {
        process.setEnvironment(QProcess::systemEnvironment()
                               << QStringLiteral("HOME=") + home
                               << QStringLiteral("XDG_CONFIG_HOME=%1/config").arg(home)
                               << QStringLiteral("XDG_DATA_HOME=%1/data").arg(home)
                               << QStringLiteral("XDG_RUNTIME_DIR=%1/runtime").arg(home));
        process.start(program.isEmpty()
                          ? QCoreApplication::applicationDirPath() + QStringLiteral("/paircade")
                          : program,
                      QStringList());
        if (!process.waitForStarted())
            qFatal("the program is not built");
    }
    ~Program()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Program)

    [[nodiscard]] bool isRunning() const { return process.state() == QProcess::Running; }
    void signal(int number) const { ::kill(pid_t(process.processId()), number); }

    /// Whether the window is as good as up: a signal to end is answered in order.
    [[nodiscard]] bool isUp() const
    {
        const QByteArray status =
            contentsOf(QStringLiteral("/proc/%1/status").arg(process.processId()));
        const QByteArray mask = status.mid(status.indexOf("SigCgt:") + 8, 16);
        return (mask.toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
    }
    /// Waits until it is up; false if it ended instead, or hangs.
    bool comesUp()
    {
        (void)QTest::qWaitFor([this] { return isUp() || !isRunning(); }, patience);
        return isUp();
    }
    /// Waits for its end; true if that was in order.
    bool endsWell()
    {
        return QTest::qWaitFor([this] { return !isRunning(); }, patience) &&
               process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QProcess process{};

private:
    static constexpr int patience = 20'000; // ms, for a busy machine
};
