// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One game at a time uses a folder; a second start brings the first to the front.
#include "app/single_instance.h"
#include "support/broken_world.h"
#include "support/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <cstdio>

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

    void withoutAUsableFolderTheGameRunsUnguarded()
    {
        SingleInstance instance;
        QCOMPARE(instance.claim(QString(), {}), SingleInstance::Claim::isOurs);
        QCOMPARE(instance.claim(m_home->filePath(QStringLiteral("missing")), {}),
                 SingleInstance::Claim::isOurs);
    }

private:
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
