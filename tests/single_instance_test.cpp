// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One game at a time uses a folder; a second start brings the first to the front.
#include "app/single_instance.h"
#include "support/broken_world.h"
#include "support/program.h"
#include "support/rows.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <cerrno>
#include <cstdio>
#include <list>
#include <sys/syscall.h>

using namespace Qt::StringLiterals;
using Claim = SingleInstance::Claim;

namespace {

bool isFlockKnown = true;

/// What a game leaves in its lock.
QByteArray lockOf(qint64 process, const QByteArray& program = "paircade")
{
    return QByteArray::number(process) + '\n' + program + '\n' +
           QSysInfo::machineHostName().toUtf8() + '\n';
}

constexpr qint64 longGone = 4194303; // no process has so high a number

} // namespace

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
        m_data = m_home->filePath(u"data"_s);
        const QDir home(m_home->path());
        constexpr auto mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QVERIFY(home.mkdir(u"data"_s) && home.mkdir(u"runtime"_s, mine));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_home->path()));
    }

    void aSecondStartHandsItsTokenOver()
    {
        QVERIFY(QFile::link(m_data, m_home->filePath(u"link"_s)));
        SingleInstance first;
        QByteArrayList tokens;
        connect(&first, &SingleInstance::startedAgain, this,
                [&](const QByteArray& token) { tokens << token; });
        QCOMPARE(first.claim(m_data, {}), Claim::isOurs);
        QCOMPARE(claimElsewhere(u"data"_s, "token 1\nx"), Claim::handedOver);
        QCOMPARE(claimElsewhere(u"link"_s), Claim::handedOver);
        QCOMPARE(tokens, (QByteArrayList{"token 1 x", ""}));

        QVERIFY(QDir(m_home->path()).mkdir(u"other"_s));
        QCOMPARE(claimElsewhere(u"other"_s), Claim::isOurs);
    }

    void aFolderIsFreeAgainAfterItsGame()
    {
        QCOMPARE(SingleInstance().claim(m_data, {}), Claim::isOurs);
        QCOMPARE(claimElsewhere(u"data"_s), Claim::isOurs);
        // What a crash leaves behind is no game.
        writeFile(m_data + u"/lock"_s, lockOf(longGone));
        QCOMPARE(claimElsewhere(u"data"_s), Claim::isOurs);
    }

    void aHolderThatDoesNotAnswerIsGivenUp()
    {
        SingleInstance first;
        QCOMPARE(first.claim(m_data, {}), Claim::isOurs);
        // This process holds the folder and, waiting here, serves nobody.
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(SingleInstance().claim(m_data, {}), Claim::noAnswer);
        QVERIFY2(waited.elapsed() < 3000, qPrintable(QString::number(waited.elapsed())));
    }

    void aHolderThatJustLeavesIsSucceeded()
    {
        // A lock of a game that does not listen, and goes in a moment.
        QProcess holder;
        holder.start(QCoreApplication::applicationFilePath(), {u"--hold"_s, m_data + u"/lock"_s});
        QVERIFY(holder.waitForReadyRead(5000));
        QCOMPARE(SingleInstance().claim(m_data, {}), Claim::isOurs);
        QVERIFY(holder.waitForFinished(5000));
    }

    void aLockThatCannotBeRemovedKeepsNobodyFromPlaying()
    {
        // Of a process long gone, in a folder that the player cannot write.
        writeFile(m_data + u"/lock"_s, lockOf(longGone));
        forbid(m_data, 0555);
        {
            const AsNobody nobody(m_home->path());
            QCOMPARE(SingleInstance().claim(m_data, {}), Claim::isOurs);
            forbid(m_data + u"/lock"_s); // then it may be that of a game
            QCOMPARE(SingleInstance().claim(m_data, {}), Claim::noAnswer);
        }
        forbid(m_data + u"/lock"_s, 0644);
        forbid(m_data, 0755);
        QCOMPARE(contentsOf(m_data + u"/lock"_s), lockOf(longGone));
    }

    void whereLocksAreUnknownALivingGameIsStillFound_data()
    {
        const Rows<QByteArray, Claim> row{"lock", "claim"};
        row("nobody was there", {}, Claim::isOurs);
        row("of a game that is gone", lockOf(longGone), Claim::isOurs);
        row("cut short", "1", Claim::isOurs);
        row("of a game that hangs", lockOf(::getpid(), "single_instance_test"), Claim::noAnswer);
    }

    void whereLocksAreUnknownALivingGameIsStillFound()
    {
        QFETCH(QByteArray, lock);
        if (!lock.isEmpty())
            writeFile(m_data + u"/lock"_s, lock);
        isFlockKnown = false;
        const Claim made = SingleInstance().claim(m_data, {});
        isFlockKnown = true;
        QTEST(made, "claim");
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

    void withoutAUsableFolderTheGameRunsUnguarded()
    {
        for (const QString& folder : {QString(), m_home->filePath(u"missing"_s)})
            QCOMPARE(SingleInstance().claim(folder, {}), Claim::isOurs);
    }

private:
    /// Whether `program` says that another game does not answer.
    static bool says(Program& program)
    {
        program.process.setReadChannel(QProcess::StandardError);
        return program.process.bytesAvailable() > 0 &&
               program.process.peek(4096).contains("already running");
    }

    /// Claims the folder `name` of the home in another process, which this one may answer.
    Claim claimElsewhere(const QString& name, const QByteArray& token = {})
    {
        QProcess child;
        qputenv("XDG_ACTIVATION_TOKEN", token);
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--claim"_s, m_home->filePath(name)});
        if (!QTest::qWaitFor([&] { return child.state() == QProcess::NotRunning; }, 10'000))
            return Claim::noAnswer;
        return Claim(child.exitCode());
    }

    std::unique_ptr<QTemporaryDir> m_home{};
    QString m_data{};
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
