// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_lists.h"
#include "highscores/recording.h"
#include "support/rows.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

using Score = std::optional<std::int64_t>;
using Ranking = HighscoreEntries (*)(HighscoreEntries, std::size_t);

constexpr std::size_t limit = 10;

/// A record that the test tells apart by its name.
HighscoreEntry solo(const char* name, std::int64_t time, std::int64_t failures)
{
    return {.playerName = QString::fromLatin1(name),
            .elapsedSeconds = time,
            .failedAttempts = failures};
}

HighscoreEntry versus(const char* name, Score first, Score second, std::int64_t time)
{
    return {.playerName = QString::fromLatin1(name),
            .elapsedSeconds = time,
            .firstPlayerScore = first,
            .secondPlayerScore = second};
}

HighscoreEntry played(const char* name, QLatin1String mode, std::int64_t cards, std::int64_t rounds,
                      std::int64_t time = 0, std::int64_t failures = 0)
{
    return {.gameMode = mode,
            .playerName = QString::fromLatin1(name),
            .elapsedSeconds = time,
            .failedAttempts = failures,
            .amountCards = cards,
            .amountRounds = rounds};
}

QByteArray namesOf(const HighscoreEntries& entries)
{
    QByteArray names;
    for (const HighscoreEntry& entry : entries)
        names += entry.playerName.toLatin1();
    return names;
}

} // namespace

Q_DECLARE_METATYPE(Ranking)

class HighscoreListsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ranks_data()
    {
        const Rows<Ranking, HighscoreEntries, QByteArray> row{"ranking", "entries", "names"};
        row("time: fastest first, any 64-bit value", rankByTime,
            {solo("a", INT64_MAX, 0), solo("b", 5, 9), solo("c", INT64_MIN, 0)}, "cba");
        row("time: then fewer failures, then the older record", rankByTime,
            {solo("a", 5, 3), solo("b", 5, 2), solo("c", 5, 3), solo("d", 5, 2)}, "bdac");
        row("failures: fewest first, any 64-bit value", rankByFailures,
            {solo("a", 0, INT64_MAX), solo("b", 9, 5), solo("c", 0, INT64_MIN)}, "cba");
        row("failures: then the shorter time, then the older record", rankByFailures,
            {solo("a", 3, 5), solo("b", 2, 5), solo("c", 3, 5), solo("d", 2, 5)}, "bdac");
        row("margin: largest lead first, whoever leads, a draw last", rankByMargin,
            {versus("a", 5, 3, 1), versus("b", 4, 4, 1), versus("c", 1, 6, 1)}, "cab");
        row("margin: then the shorter time, then the older record", rankByMargin,
            {versus("a", 5, 3, 9), versus("b", 1, 3, 8), versus("c", 2, 0, 9)}, "bac");
        row("margin: an absent score counts as 0", rankByMargin,
            {versus("a", {}, {}, 1), versus("b", {}, 3, 1), versus("c", -2, {}, 1)}, "bca");
        row("margin: leads beyond the signed range", rankByMargin,
            {versus("a", 0, INT64_MAX, 1), versus("b", INT64_MIN, INT64_MAX, 1),
             versus("c", INT64_MIN, {}, 1), versus("d", INT64_MAX, INT64_MIN + 1, 1)},
            "bdca");
    }

    void ranks()
    {
        QFETCH(const Ranking, ranking);
        QFETCH(const HighscoreEntries, entries);
        QTEST(namesOf(ranking(entries, limit)), "names");
    }

    void amongManyTheOldestTenOfTheBestAreKept()
    {
        // More than a sort that is not stable happens to leave in order.
        HighscoreEntries entries;
        for (int i = 0; i < 40; ++i) {
            entries.push_back(versus(QByteArray(1, char('A' + i)), i % 2, {}, i % 2));
            entries.back().failedAttempts = i % 2;
        }
        QCOMPARE(namesOf(rankByTime(entries, limit)), QByteArray("ACEGIKMOQS"));
        QCOMPARE(namesOf(rankByFailures(entries, limit)), QByteArray("ACEGIKMOQS"));
        QCOMPARE(namesOf(rankByMargin(entries, limit)), QByteArray("BDFHJLNPRT"));
        QCOMPARE(namesOf(inReportOrder(entries)), QByteArray("ACEGIKMOQSUWY[]_aceg"
                                                             "BDFHJLNPRTVXZ\\^`bdfh"));
    }

    void filtersExactly()
    {
        const HighscoreEntries entries{
            played("a", soloMode, 2, 3),
            played("b", versusMode, 2, 3),
            played("c", QLatin1String("Solo"), 2, 3),
            played("d", soloMode, 4'294'967'298, 3),
            played("e", soloMode, 2, 4'294'967'299),
            played("f", {}, 2, 3),
            played("g", soloMode, 2, 3),
        };
        QCOMPARE(namesOf(entriesOf(entries, 2, 3, soloMode)), QByteArray("ag"));
        QCOMPARE(namesOf(entriesOf(entries, 2, 3, versusMode)), QByteArray("b"));
    }

    void reportOrderGoesByFourKeysThenFileOrder()
    {
        const HighscoreEntries entries{
            played("a", soloMode, 2, 1, 1, 1),   played("b", versusMode, 1, 2, 1, 1),
            played("c", soloMode, 1, 1, 9, 1),   played("d", soloMode, 1, 1, 8, 3),
            played("e", versusMode, 1, 1, 8, 2), played("f", soloMode, 1, 1, 8, 3),
            played("g", soloMode, -7, 9, 9, 9),  played("h", soloMode, 10, 1, 1, 1),
        };
        QCOMPARE(namesOf(inReportOrder(entries)), QByteArray("gedfcbah"));
    }

    void everyRecordHasAnIdOfItsOwn()
    {
        const QSet<QUuid> ids{QUuid(), soloEntry({}, {}).id, soloEntry({}, {}).id,
                              versusEntry({}, {}, {}).id, versusEntry({}, {}, {}).id};
        QCOMPARE(ids.size(), 5);
    }
};

QTEST_GUILESS_MAIN(HighscoreListsTest)
#include "highscore_lists_test.moc"
