// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/rules/card_layout.h"
#include "game/rules/shuffle.h"
#include "support/rows.h"

#include <map>

class RulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void boardAndWindowOfAmountCards_data()
    {
        using Numbers = QList<int>;
        const Rows<qint64, Numbers, Numbers> row{"amountCards", "board", "window"};
        row("wraps to 3 when narrowed too early", -4'294'967'293, {4, 3, 6}, {1100, 700});
        row("1", 1, {4, 3, 6}, {1100, 700});
        row("2", 2, {4, 4, 8}, {1150, 760});
        row("3", 3, {5, 4, 10}, {1220, 760});
        row("4", 4, {6, 4, 12}, {1320, 760});
        row("5", 5, {7, 4, 14}, {1420, 760});
        row("6", 6, {8, 5, 20}, {1580, 900});
        row("7: the largest board in the first window", 7, {8, 5, 20}, {1100, 700});
    }

    void boardAndWindowOfAmountCards()
    {
        QFETCH(const qint64, amountCards);
        const CardLayout& board = cardLayout(amountCards);
        const CardLayout& window = windowLayout(amountCards);
        QTEST((QList{board.columns, board.rows, board.pairs()}), "board");
        QTEST((QList{window.windowWidth, window.windowHeight}), "window");
    }

    // The rest that is rejected is 2^64 mod bound: 1 for 3, 4 for 6, 2^63 - 1
    // for 2^63 + 1.
    void drawsByMultiplyAndReject_data()
    {
        constexpr quint64 half = quint64{1} << 63;
        const Rows<quint64, QList<quint64>, quint64> row{"bound", "words", "draw"};
        row("3: word 0 has low word 0 and is redrawn", 3, {0, 1}, 0);
        row("3: the last word that gives 0", 3, {0x5555'5555'5555'5555}, 0);
        row("3: the first word that gives 1", 3, {0x5555'5555'5555'5556}, 1);
        row("3: the highest word gives 2", 3, {UINT64_MAX}, 2);
        row("6: low words 0, 2 and 0 again are redrawn", 6,
            {0, 0x2AAA'AAAA'AAAA'AAAB, half, 0x2AAA'AAAA'AAAA'AAAC}, 1);
        row("2: the upper half gives 1", 2, {half}, 1);
        row("2^63 + 1: word 2 has low word 2 and is redrawn", half + 1, {0, 2, 3}, 1);
        row("2^63 + 1: a low word equal to the rest counts", half + 1, {UINT64_MAX}, half);
    }

    void drawsByMultiplyAndReject()
    {
        QFETCH(const quint64, bound);
        QFETCH(const QList<quint64>, words);
        qsizetype taken = 0;
        // After the words, one that no bound rejects.
        QTEST(quint64{boundedDraw(bound, [&] { return words.value(taken++, INT64_MAX); })}, "draw");
        QCOMPARE(taken, words.size());
    }

    void everyOrderIsEquallyLikely()
    {
        constexpr int shuffles = 48'000;
        std::map<QByteArray, int> counts;
        for (int i = 0; i < shuffles; ++i) {
            QByteArray list = "ABCD";
            shuffle(list);
            ++counts[list];
        }
        QCOMPARE(counts.size(), std::size_t{24});
        constexpr double expected = shuffles / 24.0;
        double chiSquare = 0;
        for (const auto& [order, count] : counts)
            chiSquare += (count - expected) * (count - expected) / expected;
        // With 23 degrees of freedom a fair shuffle exceeds 80 once in 30
        // million runs; one that swaps each place with any exceeds 10,000.
        QVERIFY2(chiSquare < 80, qPrintable(QString::number(chiSquare)));
    }
};

QTEST_GUILESS_MAIN(RulesTest)
#include "rules_test.moc"
