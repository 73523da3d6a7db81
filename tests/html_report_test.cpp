// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The page of all results as a file. What it shows in a browser is tested in
// tests/browser, and that no name is markup in tests/fuzz.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "settings/settings_keys.h"
#include "stage/files.h"
#include "stage/stage_platform.h"
#include "support/broken_world.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class HtmlReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePageIsOpenedOnceItIsWritten()
    {
        const StagePlatform platform;
        platform.writeHighscoreFile(encodeHighscores({{.playerName = u"Zoë"_s}, {}}));
        platform.defaults->setInteger(SettingsKeys::AmountCards, 9);
        platform.defaults->setInteger(SettingsKeys::AmountRounds, -5);
        MemoryGame game;
        game.openHighscoresHTML();
        const QDir data(platform.home.filePath(u"data"_s));
        const QString report = data.filePath(u"Paircade/highscores.html"_s);
        QByteArray page = contentsOf(report);
        QVERIFY(page.contains("<td>Zoë</td>") && page.contains("</tr>\n<tr\n"));
        QVERIFY(page.contains("<p class=\"subtitle\">Every stored result. Current settings: "
                              "layout\u00a06 of\u00a06, rounds:\u00a01.</p>"));
        QVERIFY(!page.contains("highscores_")); // every text was found

        // It is made anew, though write-protected; an unreadable file holds no records.
        platform.writeHighscoreFile("[{}]");
        forbid(report, 0444);
        std::optional<AsNobody> nobody(platform.home.path());
        game.openHighscoresHTML();
        nobody.reset();
        page = contentsOf(report);
        QVERIFY(page.contains("<td colspan=\"6\">No results yet</td>"));
        QCOMPARE(platform.openedFiles.paths, QStringList({report, report}));

        // What cannot be written is told and not opened, and the earlier page stays.
        {
            const Limit disk(RLIMIT_FSIZE, 1000);
            game.openHighscoresHTML();
        }
        QCOMPARE(contentsOf(report), page);
        QCOMPARE(platform.alertLog.shown,
                 QStringList(u"The highscore page could not be saved|File too large|OK"_s));
        QCOMPARE(platform.openedFiles.paths.size(), 2);
    }
};

QTEST_GUILESS_MAIN(HtmlReportTest)
#include "html_report_test.moc"
