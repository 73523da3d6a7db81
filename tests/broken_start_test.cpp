// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program itself in a broken world: it comes up, ends when told to, and spoils no file.
#include "support/broken_world.h"
#include "support/program.h"
#include "support/rows.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class BrokenStartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theProgramStartsAndEnds_data()
    {
        // Shell, in the home; then what is there and must not change.
        const Rows<QByteArray, QStringList> row{"breakIt", "stays"};
        const QString settings = u"config/Paircade/Paircade.conf"_s;
        const QString results = u"data/Paircade/highscores.json"_s;
        row("settings that cannot be written", "chmod 444 $settings", {settings});
        row("no folder of settings, and none can be made", "rm -r config/*; chmod 555 config",
            {u"config"_s, settings});
        row("no folder of results, and none can be made", "rm -r data/*; chmod 555 data",
            {u"data"_s, results});
        row("a pipe as settings", "rm $settings; mkfifo $settings", {settings});
        row("a lock cut short by a crash", ": >data/Paircade/lock", {results});
        row("a lock from before the machine was renamed",
            "printf '1\\npaircade\\nelsewhere\\n' >data/Paircade/lock", {results});
        row("no runtime folder", "rm -r runtime; echo >runtime", {results, u"runtime"_s});
        row("standard streams closed",
            "mv bin/paircade bin/it;"
            "printf '#!/bin/sh\nexec \"${0%%paircade}it\" <&- >&- 2>&-\n' >bin/paircade;"
            "chmod 755 bin/paircade",
            {results});
        row("no resources", "rm -r share", {results});
    }

    void theProgramStartsAndEnds()
    {
        QFETCH(const QByteArray, breakIt);
        QFETCH(const QStringList, stays);
        const QTemporaryDir home;
        QProcess shell;
        shell.setWorkingDirectory(home.path());
        const QString script =
            u"mkdir -p bin config/Paircade data/Paircade; mkdir -m 700 runtime;"
            "cp \"$0\"/paircade bin; cp -r \"$0\"/../share .;"
            "settings=config/Paircade/Paircade.conf; printf '[General]\\nKept=1\\n' >$settings;"
            "echo '[]' >data/Paircade/highscores.json;"_s +
            QString::fromLatin1(breakIt);
        shell.start(u"sh"_s, {u"-ec"_s, script, QCoreApplication::applicationDirPath()});
        QVERIFY(shell.waitForFinished() && shell.exitCode() == 0);

        const AsNobody nobody(home.path());
        const auto identities = [&] {
            std::vector<decltype(identity({}))> found;
            for (const QString& path : stays)
                found.push_back(identity(home.filePath(path)));
            return found;
        };
        const auto before = identities();
        qputenv("QT_QPA_PLATFORM", "offscreen"); // without a file of ours
        Program game(home.path(), home.filePath(u"bin/paircade"_s));
        const bool isUp = game.comesUp();
        const QString log = QFile::symLinkTarget(u"/proc/%1/fd/1"_s.arg(game.process.processId()));
        game.signal(SIGTERM);
        const bool isOver = game.endsWell();
        QCOMPARE(game.process.readAllStandardError() + game.process.readAllStandardOutput(), "");
        QVERIFY2(!log.isEmpty() && !log.startsWith(home.path()), qPrintable(log));
        QVERIFY(isUp && isOver);
        QVERIFY(identities() == before);
    }
};

QTEST_MAIN(BrokenStartTest)
#include "broken_start_test.moc"
