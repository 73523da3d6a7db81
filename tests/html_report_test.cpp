// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The page of all results as text, from the record to the file. What it does in a
// browser is tested in tests/browser.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "highscores/html_report.h"
#include "platform/date_text.h"
#include "settings/settings_keys.h"
#include "support/files.h"
#include "support/test_platform.h"

#include <QDesktopServices>
#include <QDir>
#include <QTest>
#include <QTimeZone>
#include <QUrl>
#include <csignal>
#include <memory>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// What stands between `from` and the next `to`.
QString between(const QString& page, const QString& from, const QString& to)
{
    return page.section(from, 1, 1).section(to, 0, 0);
}

QString rowsIn(const QString& page)
{
    return between(page, u"<tbody>\n"_s, u"\n                </tbody>"_s);
}

/// Texts of which each one is escaped in a way of its own.
const ReportTexts marked{.language = u"xx"_s,
                         .title = u"<T>"_s,
                         .subtitle = u"\"S\" & {{rows}}"_s,
                         .soloMode = u"<1>"_s,
                         .versusMode = u"1 & 1"_s,
                         .secondPlayer = u"<Two>"_s,
                         .empty = u"\"&amp;\""_s};

} // namespace

class HtmlReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform = std::make_unique<TestPlatform>();
        m_report = m_platform->home.filePath(u"data/Paircade/highscores.html"_s);
    }

    void cleanup() { m_platform.reset(); }

    void writesARowForEveryRecord_data()
    {
        QTest::addColumn<HighscoreEntry>("entry");
        QTest::addColumn<QStringList>("values"); ///< of the attributes, then of the cells
        const auto row = [](const char* name, HighscoreEntry entry, const char* values) {
            QTest::newRow(name) << entry << QString::fromUtf8(values).split(u'|');
        };
        row("solo",
            {.gameMode = soloMode,
             .playerName = u"Zoë ÄRGER"_s,
             .elapsedSeconds = 75,
             .failedAttempts = 3,
             .amountCards = 1,
             .amountRounds = 2},
            "zoë ärger|75|3|1|2|solo|Zoë ÄRGER|01:15|3|4x3|2|&lt;1&gt;");
        row("versus: the lead is sorted, the score is shown",
            {.gameMode = versusMode,
             .playerName = u"Ann"_s,
             .secondPlayerName = u"Ben"_s,
             .elapsedSeconds = 3600,
             .failedAttempts = 9,
             .firstPlayerScore = 3,
             .secondPlayerScore = 5,
             .amountCards = 6,
             .amountRounds = 10},
            "ann vs ben|3600|2|6|10|versus|Ann vs Ben|60:00|3 : 5|8x5|10|1 &amp; 1");
        row("versus: absent values, and the stand-in is escaped once",
            {.gameMode = versusMode, .playerName = u""_s, .amountCards = 2},
            " vs &lt;two&gt;|0|0|2|0|versus| vs &lt;Two&gt;|00:00|0 : 0|4x4|0|1 &amp; 1");
        row("any other mode is solo, any other layout its number",
            {.gameMode = u"Versus"_s,
             .secondPlayerName = u"Ben"_s,
             .firstPlayerScore = 9,
             .amountCards = 9},
            "|0|0|9|0|solo||00:00|0|9|0|&lt;1&gt;");
        row("any number",
            {.gameMode = versusMode,
             .secondPlayerName = u""_s,
             .elapsedSeconds = INT64_MIN,
             .firstPlayerScore = INT64_MIN,
             .secondPlayerScore = INT64_MAX,
             .amountCards = INT64_MIN,
             .amountRounds = INT64_MAX},
            " vs |-9223372036854775808|18446744073709551615|-9223372036854775808"
            "|9223372036854775807|versus| vs |-153722867280912930:-8"
            "|-9223372036854775808 : 9223372036854775807|-9223372036854775808"
            "|9223372036854775807|1 &amp; 1");
        row("markup, entities and places of the template stay text",
            {.playerName = u"<B> &LT; \"&amp;\" 'q' {{title}} %1"_s},
            "&lt;b&gt; &amp;lt; &quot;&amp;amp;&quot; 'q' {{title}} %1|0|0|0|0|solo"
            "|&lt;B&gt; &amp;LT; &quot;&amp;amp;&quot; 'q' {{title}} %1|00:00|0|0|0|&lt;1&gt;");
    }

    void writesARowForEveryRecord()
    {
        QFETCH(const HighscoreEntry, entry);
        QFETCH(const QStringList, values);
        QString expected = u"<tr\n"_s;
        int next = 0;
        for (const char* const name : {"player", "time", "failures", "cards", "rounds", "mode"})
            expected += u"    data-%1=\"%2\"\n"_s.replace(u"%1"_s, QLatin1String(name))
                            .replace(u"%2"_s, values[next++]);
        expected += u">\n"_s;
        while (next < values.size())
            expected += u"    <td>"_s + values[next++] + u"</td>\n"_s;
        expected += u"</tr>"_s;
        QCOMPARE(rowsIn(buildReport({entry}, marked)), expected);
        QCOMPARE(rowsIn(buildReport({entry, entry}, marked)), expected + u'\n' + expected);
    }

    void everyTextButTheLanguageIsEscaped()
    {
        const QString page = buildReport({}, marked);
        QVERIFY(page.startsWith(u"<!DOCTYPE html>\n<html lang=\"xx\">\n"_s));
        QVERIFY(page.endsWith(u"</body>\n</html>\n"_s));
        QCOMPARE(page.count(u"&lt;T&gt;"_s), 2);
        QVERIFY(page.contains(u"<p class=\"subtitle\">&quot;S&quot; &amp; {{rows}}</p>"_s));
        QCOMPARE(rowsIn(page), u"<tr>\n    <td colspan=\"6\">&quot;&amp;amp;&quot;</td>\n</tr>"_s);
        QCOMPARE(page.count(u"{{"_s), 1);
    }

    void opensThePageOfAllRecordsInOrder()
    {
        HighscoreEntries entries;
        for (const int time : {7, 3, 5, 9, 1, 8, 2, 6, 0, 4, 11, 10})
            entries.push_back({.gameMode = soloMode, .elapsedSeconds = time, .amountCards = 1});
        entries.push_back({.gameMode = versusMode, .elapsedSeconds = -1, .amountCards = 2});
        m_platform->writeHighscoreFile(encodeHighscores(entries));
        m_platform->defaults->setInteger(SettingsKeys::AmountCards, 9);
        m_platform->defaults->setInteger(SettingsKeys::AmountRounds, -5);

        MemoryGame().openHighscoresHTML();
        QCOMPARE(m_platform->openedFiles.paths, QStringList(m_report));
        QVERIFY(m_platform->alertLog.shown.isEmpty());
        const QString page = QString::fromUtf8(contentsOf(m_report));
        QStringList times = page.split(u"data-time=\""_s).mid(1);
        for (QString& time : times)
            time = time.section(u'"', 0, 0);
        QCOMPARE(times.join(u' '), u"0 1 2 3 4 5 6 7 8 9 10 11 -1"_s);
        QCOMPARE(
            between(page, u"<p class=\"subtitle\">"_s, u"</p>"_s),
            u"Every stored result. Current settings: layout\u00a06 of\u00a06, rounds:\u00a01."_s);
        QVERIFY(!page.contains(u"highscores_"_s)); // every text was found

        // The report is made anew; an unreadable file holds no records.
        m_platform->writeHighscoreFile("[{}]");
        MemoryGame().openHighscoresHTML();
        QVERIFY(contentsOf(m_report).contains("<td colspan=\"6\">No results yet</td>"));
        QCOMPARE(m_platform->openedFiles.paths.size(), 2);
    }

    void aPageThatCannotBeWrittenIsNotOpened_data()
    {
        QTest::addColumn<QString>("obstacle"); ///< A file or folder in the way; none: a full disk.
        QTest::addColumn<QString>("reason");
        QTest::newRow("the disk is full") << QString() << u"File too large"_s;
        QTest::newRow("a folder is in the way")
            << u"data/Paircade/highscores.html/x/"_s << u"Filename refers to a directory"_s;
        QTest::newRow("the folder cannot be made") << u"data"_s << u"Not a directory"_s;
    }

    void aPageThatCannotBeWrittenIsNotOpened()
    {
        QFETCH(const QString, obstacle);
        QFETCH(const QString, reason);
        MemoryGame game;
        rlimit before{};
        ::getrlimit(RLIMIT_FSIZE, &before);
        if (obstacle.isEmpty()) {
            game.openHighscoresHTML();
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit full{1000, before.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &full);
        } else {
            const QString path = m_platform->home.filePath(obstacle);
            QDir(m_platform->home.filePath(u"data"_s)).removeRecursively();
            if (path.endsWith(u'/'))
                QDir().mkpath(path);
            else
                QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        }
        const QByteArray earlier = contentsOf(m_report);
        m_platform->openedFiles.paths.clear();
        game.openHighscoresHTML();
        ::setrlimit(RLIMIT_FSIZE, &before);

        QCOMPARE(m_platform->alertLog.shown,
                 QStringList(u"The highscore page could not be saved|"_s + reason + u"|OK"_s));
        QVERIFY(m_platform->openedFiles.paths.isEmpty());
        QCOMPARE(contentsOf(m_report), earlier);
        QCOMPARE(earlier.isEmpty(), !obstacle.isEmpty());
    }

    void datesFollowTheLocale_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("de_DE") << u"03.02.2026, 14:05"_s;
        QTest::newRow("en_US") << u"Feb 3, 2026, 2:05 PM"_s;
        QTest::newRow("en_GB") << u"3 Feb 2026, 14:05"_s;
        QTest::newRow("ja_JP") << u"2026/02/03 14:05"_s;
    }

    void datesFollowTheLocale()
    {
        QFETCH(const QString, text);
        // Whatever zone it is of, the time is the one that its own clock shows.
        QString shown = dateText(QDateTime({2026, 2, 3}, {14, 5}, QTimeZone(19800)),
                                 QString::fromLatin1(QTest::currentDataTag()));
        // Some releases of ICU put a narrow space before PM.
        QCOMPARE(shown.replace(QChar(0x202f), u' '), text);
    }

    void filesAreOpenedByTheDesktop()
    {
        QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
        Workspace().openFile(u"/tmp/a b/#1?x=$(y)'\"%41;é.html"_s);
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(m_url.toLocalFile(), u"/tmp/a b/#1?x=$(y)'\"%41;é.html"_s);
    }

public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_url = url; }

private:
    std::unique_ptr<TestPlatform> m_platform{};
    QString m_report{};
    QUrl m_url{};
};

QTEST_GUILESS_MAIN(HtmlReportTest)
#include "html_report_test.moc"
