// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One game at a time uses a folder; a second start brings the first to the front.
#include "app/single_instance.h"
#include "support/program.h"

#include <QDir>
#include <cerrno>
#include <list>
#include <map>
#include <sys/syscall.h>

using namespace Qt::StringLiterals;
using Claim = SingleInstance::Claim;

static bool isFlockKnown = true;

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
        isFlockKnown = true;
        m_home = std::make_unique<QTemporaryDir>();
        const QDir home(m_home->path());
        constexpr auto mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QVERIFY(home.mkpath(u"data/Paircade"_s) && home.mkdir(u"runtime"_s, mine));
        m_data = home.filePath(u"data/Paircade"_s);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.filePath(u"runtime"_s)));
    }

    void aSecondStartHandsItsTokenOver()
    {
        SingleInstance first;
        QByteArrayList tokens;
        connect(&first, &SingleInstance::startedAgain, this,
                [&](const QByteArray& token) { tokens << token; });
        QCOMPARE(first.claim(m_data, {}), Claim::isOurs);
        qputenv("DESKTOP_STARTUP_ID", "token 1\nx");
        QVERIFY(Program(m_home->path()).endsWell());
        qunsetenv("DESKTOP_STARTUP_ID");
        // The same folder by another path.
        QVERIFY(QFile::link(m_home->path(), m_home->filePath(u"link"_s)));
        QVERIFY(Program(m_home->filePath(u"link"_s)).endsWell());
        QCOMPARE(tokens, (QByteArrayList{"token 1 x", ""}));
    }

    void whereLocksAreUnknownALivingGameIsStillFound()
    {
        // The second is of a game long gone: no process has so high a number.
        const QByteArray here = '\n' + QSysInfo::machineHostName().toUtf8() + '\n';
        const std::map<QByteArray, Claim> locks{
            {"1", Claim::isOurs},
            {"4194303\npaircade" + here, Claim::isOurs},
            {QByteArray::number(::getpid()) + "\nsingle_instance_test" + here, Claim::noAnswer}};
        isFlockKnown = false;
        for (const auto& [lock, claim] : locks) {
            writeFile(m_data + u"/lock"_s, lock);
            QCOMPARE(SingleInstance().claim(m_data, {}), claim);
        }
    }

    void ofManyStartsAtOnceOneStays()
    {
        const int rounds = std::max(1, qEnvironmentVariableIntValue("PAIRCADE_STARTS"));
        for (int round = 1; round <= rounds; ++round) {
            std::list<Program> programs;
            for (int i = 0; i < 4; ++i)
                programs.emplace_back(m_home->path());
            // The others have handed over, or say that they could not: the first was slow.
            const auto running = [&] {
                return std::ranges::count_if(programs, [](Program& program) {
                    return program.isRunning() && !says(program);
                });
            };
            QVERIFY(QTest::qWaitFor([&] { return running() == 1; }, 20'000));
            for (Program& program : programs)
                QVERIFY(says(program) ||
                        (program.isRunning() ? program.comesUp() : program.endsWell()));
            QCOMPARE(running(), 1);
        }
    }

    void aGameThatHangsIsNamed()
    {
        Program first(m_home->path());
        QVERIFY(first.comesUp());
        first.signal(SIGSTOP);
        {
            Program second(m_home->path());
            QVERIFY(QTest::qWaitFor([&] { return says(second) || !second.isRunning(); }, 20'000));
            QVERIFY(second.isRunning()); // until its box is answered
        }
        first.signal(SIGCONT);
        QVERIFY(Program(m_home->path()).endsWell());
        first.signal(SIGTERM);
        QVERIFY(first.endsWell());
    }

    void aKilledGameLeavesTheFolderFree()
    {
        QVERIFY(Program(m_home->path()).comesUp()); // then killed; its lock and socket stay
        Program next(m_home->path());
        QVERIFY(next.comesUp());
        QVERIFY(Program(m_home->path()).endsWell());
        QVERIFY(next.isRunning());
    }

private:
    /// Whether `program` says that another game does not answer.
    static bool says(Program& program)
    {
        program.process.setReadChannel(QProcess::StandardError);
        return program.process.bytesAvailable() > 0 &&
               program.process.peek(4096).contains("already running");
    }

    std::unique_ptr<QTemporaryDir> m_home{};
    QString m_data{};
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "single_instance_test.moc"
