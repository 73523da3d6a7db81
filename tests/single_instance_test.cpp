// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One game at a time uses a folder; a second start brings the first to the front.
#include "app/single_instance.h"
#include "support/broken_world.h"
#include "support/files.h"
#include "support/program.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <cerrno>
#include <cstdio>
#include <list>
#include <sys/syscall.h>

namespace {
bool isFlockKnown = true;
}

/// The system's own, but for a folder of the network that knows no such locks.
extern "C" int flock(int file, int operation) noexcept
{
    if (isFlockKnown)
        return int(::syscall(SYS_flock, file, operation));
    errno = ENOLCK;
    return -1;
}

class SingleInstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        QFile::setPermissions(m_home->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_home->path()));
        QVERIFY(QDir(m_home->path()).mkpath(QStringLiteral("data")));
    }

    void aSecondStartHandsItsTokenOver_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("the same folder") << "data";
        QTest::newRow("the folder by another way") << "link";
    }

    void aSecondStartHandsItsTokenOver()
    {
        QFETCH(QString, path);
        QVERIFY(QFile::link(m_home->filePath(QStringLiteral("data")),
                            m_home->filePath(QStringLiteral("link"))));
        SingleInstance first;
        QByteArrayList tokens;
        connect(&first, &SingleInstance::startedAgain, this,
                [&](const QByteArray& token) { tokens << token; });
        QCOMPARE(first.claim(m_home->filePath(QStringLiteral("data")), {}),
                 SingleInstance::Claim::isOurs);

        QCOMPARE(claimElsewhere(path, "token 1\nx"), int(SingleInstance::Claim::handedOver));
        QCOMPARE(tokens, QByteArrayList{"token 1 x"});
        QCOMPARE(claimElsewhere(path, {}), int(SingleInstance::Claim::handedOver));
        QCOMPARE(tokens.size(), 2);
    }

    void anotherFolderIsAnotherGame()
    {
        SingleInstance first;
        QCOMPARE(first.claim(m_home->filePath(QStringLiteral("data")), {}),
                 SingleInstance::Claim::isOurs);
        QVERIFY(QDir(m_home->path()).mkpath(QStringLiteral("other")));
        QCOMPARE(claimElsewhere(QStringLiteral("other"), {}), int(SingleInstance::Claim::isOurs));
    }

    void aFolderIsFreeAgainAfterItsGame()
    {
        {
            SingleInstance first;
            QCOMPARE(first.claim(m_home->filePath(QStringLiteral("data")), {}),
                     SingleInstance::Claim::isOurs);
        }
        QCOMPARE(claimElsewhere(QStringLiteral("data"), {}), int(SingleInstance::Claim::isOurs));
        // What a crash leaves behind is no game.
        QFile lock(m_home->filePath(QStringLiteral("data/lock")));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        lock.write("4194303\npaircade\n" + QSysInfo::machineHostName().toUtf8() + '\n');
        lock.close();
        QCOMPARE(claimElsewhere(QStringLiteral("data"), {}), int(SingleInstance::Claim::isOurs));
    }

    void aHolderThatDoesNotAnswerIsGivenUp()
    {
        SingleInstance first;
        QCOMPARE(first.claim(m_home->filePath(QStringLiteral("data")), {}),
                 SingleInstance::Claim::isOurs);
        // This process holds the folder and, waiting here, serves nobody.
        QElapsedTimer waited;
        waited.start();
        SingleInstance second;
        QCOMPARE(second.claim(m_home->filePath(QStringLiteral("data")), {}),
                 SingleInstance::Claim::noAnswer);
        QVERIFY2(waited.elapsed() < 3000, qPrintable(QString::number(waited.elapsed())));
    }

    void aHolderThatJustLeavesIsSucceeded()
    {
        // A lock of a game that does not listen, and goes in a moment.
        QProcess holder;
        holder.start(QCoreApplication::applicationFilePath(),
                     {QStringLiteral("--hold"), m_home->filePath(QStringLiteral("data/lock"))});
        QVERIFY(holder.waitForReadyRead(5000));
        SingleInstance next;
        QCOMPARE(next.claim(m_home->filePath(QStringLiteral("data")), {}),
                 SingleInstance::Claim::isOurs);
        QVERIFY(holder.waitForFinished(5000));
    }

    void aLockThatCannotBeRemovedKeepsNobodyFromPlaying()
    {
        // Of a process long gone, in a folder that the player cannot write.
        const QString data = m_home->filePath(QStringLiteral("data"));
        writeFile(data + QStringLiteral("/lock"),
                  "4194303\npaircade\n" + QSysInfo::machineHostName().toUtf8() + '\n');
        forbid(data, 0555);
        {
            const AsNobody nobody(m_home->path());
            QCOMPARE(SingleInstance().claim(data, {}), SingleInstance::Claim::isOurs);
        }
        forbid(data, 0755);
        QVERIFY(contentsOf(data + QStringLiteral("/lock")).startsWith("4194303"));
    }

    void whereLocksAreUnknownALivingGameIsStillFound_data()
    {
        QTest::addColumn<QByteArray>("lock"); // as a crash left it
        QTest::addColumn<int>("claim");
        const QByteArray host = '\n' + QSysInfo::machineHostName().toUtf8() + '\n';
        using Claim = SingleInstance::Claim;
        QTest::newRow("nobody was there") << QByteArray() << int(Claim::isOurs);
        QTest::newRow("of a game that is gone") << "4194303\npaircade" + host << int(Claim::isOurs);
        QTest::newRow("cut short") << QByteArray("1") << int(Claim::isOurs);
        QTest::newRow("of a game that hangs")
            << QByteArray::number(::getpid()) + "\nsingle_instance_test" + host
            << int(Claim::noAnswer);
    }

    void whereLocksAreUnknownALivingGameIsStillFound()
    {
        QFETCH(QByteArray, lock);
        QFETCH(int, claim);
        if (!lock.isEmpty())
            writeFile(m_home->filePath(QStringLiteral("data/lock")), lock);
        isFlockKnown = false;
        const auto made = SingleInstance().claim(m_home->filePath(QStringLiteral("data")), {});
        isFlockKnown = true;
        QCOMPARE(int(made), claim);
    }

    void ofManyStartsAtOnceOneStays_data()
    {
        QTest::addColumn<int>("round");
        bool isSet = false;
        const int asked = qEnvironmentVariableIntValue("PAIRCADE_STARTS", &isSet);
        for (int round = 1; round <= (isSet ? asked : 1); ++round)
            QTest::addRow("round %d", round) << round;
    }

    void ofManyStartsAtOnceOneStays()
    {
        std::list<Program> programs;
        for (int i = 0; i < 4; ++i)
            programs.emplace_back(runtimeHome());
        // The others have handed over, or say that they could not: the first was slow.
        const auto running = [&] {
            return std::ranges::count_if(
                programs, [](Program& program) { return program.isRunning() && !says(program); });
        };
        QVERIFY(QTest::qWaitFor([&] { return running() == 1; }, 20'000));
        for (Program& program : programs) {
            if (!says(program))
                QVERIFY(program.isRunning() ? program.comesUp() : program.endsWell());
        }
        QCOMPARE(running(), 1);
    }

    void aGameThatHangsIsNamed()
    {
        Program first(runtimeHome());
        QVERIFY(first.comesUp());
        first.signal(SIGSTOP);
        {
            Program second(runtimeHome());
            QVERIFY(QTest::qWaitFor([&] { return says(second) || !second.isRunning(); }, 20'000));
            QVERIFY(second.isRunning()); // until its box is answered
        }
        first.signal(SIGCONT);
        QVERIFY(Program(runtimeHome()).endsWell());
        first.signal(SIGTERM);
        QVERIFY(first.endsWell());
    }

    void aKilledGameLeavesTheFolderFree()
    {
        {
            Program killed(runtimeHome()); // and with it its lock and its socket
            QVERIFY(killed.comesUp());
        }
        Program next(runtimeHome());
        QVERIFY(next.comesUp());
        QVERIFY(Program(runtimeHome()).endsWell());
        QVERIFY(next.isRunning());
    }

    void withoutAUsableFolderTheGameRunsUnguarded()
    {
        SingleInstance instance;
        QCOMPARE(instance.claim(QString(), {}), SingleInstance::Claim::isOurs);
        QCOMPARE(instance.claim(m_home->filePath(QStringLiteral("missing")), {}),
                 SingleInstance::Claim::isOurs);
    }

private:
    /// The home, with a runtime folder that only its owner enters.
    [[nodiscard]] QString runtimeHome() const
    {
        const QString runtime = m_home->filePath(QStringLiteral("runtime"));
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return m_home->path();
    }

    /// Whether `program` says that another game does not answer.
    static bool says(Program& program)
    {
        program.process.setReadChannel(QProcess::StandardError);
        return program.process.bytesAvailable() > 0 &&
               program.process.peek(4096).contains("already running");
    }

    /// Claims the folder `path` of the home in another process.
    int claimElsewhere(const QString& path, const QByteArray& token)
    {
        QProcess child;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QString::fromLatin1(token));
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--claim"), m_home->filePath(path)});
        if (!QTest::qWaitFor([&] { return child.state() == QProcess::NotRunning; }, 10'000))
            return -1;
        return child.exitCode();
    }

    std::unique_ptr<QTemporaryDir> m_home{};
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--claim") == 0)
        return int(SingleInstance().claim(QString::fromLocal8Bit(argv[2]),
                                          SingleInstance::ownActivationToken()));
    if (argc == 3 && qstrcmp(argv[1], "--hold") == 0) {
        QLockFile lock(QString::fromLocal8Bit(argv[2]));
        (void)lock.tryLock();
        std::puts("held");
        std::fflush(stdout);
        QThread::msleep(700);
        return 0;
    }
    SingleInstanceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "single_instance_test.moc"
