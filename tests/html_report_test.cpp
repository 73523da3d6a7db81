// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The page of all results as text, from the record to the file. What it does in a
// browser is tested in tests/browser.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "highscores/html_report.h"
#include "platform/date_text.h"
#include "settings/settings_keys.h"
#include "stage/files.h"
#include "stage/stage_platform.h"
#include "support/broken_world.h"

#include <QDesktopServices>
#include <QDir>
#include <QTest>
#include <QTimeZone>
#include <QUrl>

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

QString reportIn(const StagePlatform& platform)
{
    return platform.home.filePath(u"data/Paircade/highscores.html"_s);
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
    void writesARowForEveryRecord()
    {
        // The attributes, then the cells.
        const std::vector<std::pair<HighscoreEntry, QString>> rows{
            {{.gameMode = soloMode,
              .playerName = u"Zoë ÄRGER"_s,
              .elapsedSeconds = 75,
              .failedAttempts = 3,
              .amountCards = 1,
              .amountRounds = 2},
             u"zoë ärger|75|3|1|2|solo|Zoë ÄRGER|01:15|3|4x3|2|&lt;1&gt;"_s},
            // The lead is sorted, the score is shown.
            {{.gameMode = versusMode,
              .playerName = u"Ann"_s,
              .secondPlayerName = u"Ben"_s,
              .elapsedSeconds = 3600,
              .failedAttempts = 9,
              .firstPlayerScore = 3,
              .secondPlayerScore = 5,
              .amountCards = 6,
              .amountRounds = 10},
             u"ann vs ben|3600|2|6|10|versus|Ann vs Ben|60:00|3 : 5|8x5|10|1 &amp; 1"_s},
            // Absent values; the stand-in is escaped once.
            {{.gameMode = versusMode, .amountCards = 2},
             u" vs &lt;two&gt;|0|0|2|0|versus| vs &lt;Two&gt;|00:00|0 : 0|4x4|0|1 &amp; 1"_s},
            // Any other mode is solo, any other layout its number.
            {{.gameMode = u"Versus"_s,
              .secondPlayerName = u"Ben"_s,
              .firstPlayerScore = 9,
              .amountCards = INT64_MIN},
             u"|0|0|-9223372036854775808|0|solo||00:00|0|-9223372036854775808|0|&lt;1&gt;"_s},
            {{.gameMode = versusMode,
              .secondPlayerName = u""_s,
              .firstPlayerScore = INT64_MIN,
              .secondPlayerScore = INT64_MAX},
             u" vs |0|18446744073709551615|0|0|versus| vs |00:00"
             "|-9223372036854775808 : 9223372036854775807|0|0|1 &amp; 1"_s},
            // Markup, entities and places of the template stay text.
            {{.playerName = u"<B> &LT; \"&amp;\" 'q' {{title}} %1"_s},
             u"&lt;b&gt; &amp;lt; &quot;&amp;amp;&quot; 'q' {{title}} %1|0|0|0|0|solo"
             "|&lt;B&gt; &amp;LT; &quot;&amp;amp;&quot; 'q' {{title}} %1|00:00|0|0|0|&lt;1&gt;"_s},
        };
        for (const auto& [entry, values] : rows) {
            QStringList left = values.split(u'|');
            QString expected = u"<tr\n"_s;
            for (const char* const name : {"player", "time", "failures", "cards", "rounds", "mode"})
                expected += u"    data-%1=\"%2\"\n"_s.arg(QLatin1String(name), left.takeFirst());
            expected += u">\n    <td>"_s + left.join(u"</td>\n    <td>"_s) + u"</td>\n</tr>"_s;
            QCOMPARE(rowsIn(buildReport({entry}, marked)), expected);
            QCOMPARE(rowsIn(buildReport({entry, entry}, marked)), expected + u'\n' + expected);
        }
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
        const StagePlatform platform;
        HighscoreEntries entries;
        for (const int time : {7, 3, 5, 9, 1, 8, 2, 6, 0, 4, 11, 10})
            entries.push_back({.gameMode = soloMode, .elapsedSeconds = time, .amountCards = 1});
        entries.push_back({.gameMode = versusMode, .elapsedSeconds = -1, .amountCards = 2});
        platform.writeHighscoreFile(encodeHighscores(entries));
        platform.defaults->setInteger(SettingsKeys::AmountCards, 9);
        platform.defaults->setInteger(SettingsKeys::AmountRounds, -5);

        MemoryGame().openHighscoresHTML();
        const QString report = reportIn(platform);
        QCOMPARE(platform.openedFiles.paths, QStringList(report));
        QVERIFY(platform.alertLog.shown.isEmpty());
        const QString page = QString::fromUtf8(contentsOf(report));
        QString times;
        for (const QString& row : page.split(u"data-time=\""_s).mid(1))
            times += row.section(u'"', 0, 0) + u' ';
        QCOMPARE(times, u"0 1 2 3 4 5 6 7 8 9 10 11 -1 "_s);
        QCOMPARE(
            between(page, u"<p class=\"subtitle\">"_s, u"</p>"_s),
            u"Every stored result. Current settings: layout\u00a06 of\u00a06, rounds:\u00a01."_s);
        QVERIFY(!page.contains(u"highscores_"_s)); // every text was found

        // The report is made anew; an unreadable file holds no records.
        platform.writeHighscoreFile("[{}]");
        MemoryGame().openHighscoresHTML();
        QVERIFY(contentsOf(report).contains("<td colspan=\"6\">No results yet</td>"));
        QCOMPARE(platform.openedFiles.paths.size(), 2);
    }

    void aPageThatCannotBeWrittenIsNotOpened()
    {
        const StagePlatform platform;
        const QString report = reportIn(platform);
        MemoryGame game;
        game.openHighscoresHTML();
        const QByteArray earlier = contentsOf(report);
        QVERIFY(!earlier.isEmpty());
        {
            const Limit disk(RLIMIT_FSIZE, 1000);
            game.openHighscoresHTML();
        }
        QCOMPARE(contentsOf(report), earlier);
        QVERIFY(QFile::remove(report) && QDir().mkpath(report + u"/x"_s));
        game.openHighscoresHTML();
        QDir data(platform.home.filePath(u"data"_s));
        QVERIFY(data.removeRecursively());
        writeFile(data.path(), "in the way");
        game.openHighscoresHTML();

        const QString alert = u"The highscore page could not be saved|%1|OK"_s;
        QCOMPARE(platform.alertLog.shown,
                 (QStringList{alert.arg(u"File too large"_s),
                              alert.arg(u"Filename refers to a directory"_s),
                              alert.arg(u"Not a directory"_s)}));
        QCOMPARE(platform.openedFiles.paths.size(), 1); // the earlier one
    }

    void datesFollowTheLocale()
    {
        // Whatever zone it is of, the time is the one that its own clock shows.
        const QDateTime date({2026, 2, 3}, {14, 5}, QTimeZone(19800));
        QCOMPARE(dateText(date, u"de_DE"_s), u"03.02.2026, 14:05"_s);
        QCOMPARE(dateText(date, u"en_GB"_s), u"3 Feb 2026, 14:05"_s);
        // Some releases of ICU put a narrow space before PM.
        QCOMPARE(dateText(date, u"en_US"_s).replace(QChar(0x202f), u' '),
                 u"Feb 3, 2026, 2:05 PM"_s);
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
    QUrl m_url{};
};

QTEST_GUILESS_MAIN(HtmlReportTest)
#include "html_report_test.moc"
