// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_lists.h"

#include <QTest>

namespace {

using Score = std::optional<std::int64_t>;

/// A record that the test tells apart by its name.
HighscoreEntry record(int letter, std::int64_t time, std::int64_t failures, Score first = {},
                      Score second = {})
{
    return {.playerName = QChar(letter),
            .elapsedSeconds = time,
            .failedAttempts = failures,
            .firstPlayerScore = first,
            .secondPlayerScore = second};
}

QByteArray namesOf(const HighscoreEntries& entries)
{
    QByteArray names;
    for (const HighscoreEntry& entry : entries)
        names += entry.playerName.toLatin1();
    return names;
}

} // namespace

class HighscoreListsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ranksByTwoKeysThenFileOrder()
    {
        // More than a sort that is not stable happens to leave in order.
        HighscoreEntries entries;
        for (int i = 0; i < 40; ++i)
            entries.push_back(record('A' + i, i % 2, i / 2 % 2, i / 2 % 2));
        const QByteArray byTime = "AEIMQUY]aeCGKOSW[_cgBFJNRVZ^bfDHLPTX\\`dh";
        QCOMPARE(namesOf(rankByTime(entries, 40)), byTime);
        QCOMPARE(namesOf(inReportOrder(entries)), byTime);
        QCOMPARE(namesOf(rankByFailures(entries, 25)), "AEIMQUY]aeBFJNRVZ^bfCGKOS");
        QCOMPARE(namesOf(rankByMargin(entries, 25)), "CGKOSW[_cgDHLPTX\\`dhAEIMQ");
    }

    void ranksAny64BitNumber()
    {
        const HighscoreEntries solo{record('a', INT64_MAX, INT64_MIN), record('b', 5, 5),
                                    record('c', INT64_MIN, INT64_MAX)};
        QCOMPARE(namesOf(rankByTime(solo, 10)), "cba");
        QCOMPARE(namesOf(rankByFailures(solo, 10)), "abc");
        // An absent score counts as 0.
        const HighscoreEntries versus{
            record('a', 1, 1, 0, INT64_MAX),  record('b', 1, 1, INT64_MIN, INT64_MAX),
            record('c', 1, 1, INT64_MIN, {}), record('d', 1, 1, INT64_MAX, INT64_MIN + 1),
            record('e', 1, 1, {}, {}),        record('f', 1, 1, {}, 3),
            record('g', 1, 1, -2, {}),        record('h', 1, 1, 4, 4)};
        QCOMPARE(namesOf(rankByMargin(versus, 10)), "bdcafgeh");
    }
};

QTEST_GUILESS_MAIN(HighscoreListsTest)
#include "highscore_lists_test.moc"
