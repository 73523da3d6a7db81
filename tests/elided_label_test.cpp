// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Lines that quote names too long for them, or written from right to left.
#include "ui/elided_label.h"

#include "support/rows.h"

#include <cmath>

using namespace Qt::StringLiterals;

class ElidedLabelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesGiveWayAndKeepTheirDirection_data()
    {
        const Rows<QStringList> row{"names"};
        const QString wide(200, u'W');
        row("one long name", {wide});
        row("long and short", {wide, u"Ann"_s});
        row("two long ones", {wide, wide});
        row("two that differ at the end", {wide + u" 1\U0001F98A"_s, wide + u" 2\U0001F98B"_s});
        row("two that differ in the middle", {wide + u'a' + wide, wide + u'b' + wide});
        row("one begins with the other", {wide, wide + u"X"_s});
        row("digits like the rest", {u"1. "_s.repeated(100)});
        row("from right to left", {u"\u05D0\u05D1\u05D2"_s});
        row("long, from right to left", {u"\u05D0"_s.repeated(200)});
        row("with an override", {u"\u202Eabc"_s});
        row("line breaks", {u"a\nb\u2029c"_s});
        row("a megabyte", {QString(1 << 20, u'W'), u"Ann"_s});
    }

    void namesGiveWayAndKeepTheirDirection()
    {
        QFETCH(QStringList, names);
        ElidedLabel label(u"line"_s, nullptr);
        label.resize(220, 20);
        QFont font = label.font();
        font.setHintingPreference(QFont::PreferFullHinting); // letters start on whole pixels
        label.setFont(font);
        const QString line = u"1. "_s + names.join(u" vs "_s) + u" – 01:07"_s;
        label.setText(line, names);
        QVERIFY(label.fontMetrics().horizontalAdvance(label.shownText()) <= 220);
        QCOMPARE(label.text(), line.size() < 1000 ? line : label.text());
        if (names.contains(u"Ann"_s)) {
            QVERIFY(label.shownText().contains(u"vs \u2068Ann\u2069"_s));
            // What she does not need is for the other.
            QVERIFY(label.fontMetrics().horizontalAdvance(label.shownText()) >
                    220 - 2 * label.fontMetrics().horizontalAdvance(u'W'));
        }

        // Rank and time are drawn as they are around any name, at both ends.
        const QRect rank(0, 0, label.fontMetrics().horizontalAdvance(u"1."_s), 20);
        const QImage shown = picture(label);
        const int end = lastInk(shown) + 1;
        label.setText(u"1. Ann – 01:07"_s, {u"Ann"_s});
        const QImage plain = picture(label);
        const int timeWidth = label.fontMetrics().horizontalAdvance(u"01:07"_s) - 2;
        QCOMPARE(shown.copy(rank), plain.copy(rank));
        QCOMPARE(shown.copy(end - timeWidth, 0, timeWidth, 20),
                 plain.copy(lastInk(plain) + 1 - timeWidth, 0, timeWidth, 20));
    }

    void fitsByTighterLettersBeforeItIsCut_data()
    {
        const Rows<int, double, bool> row{"tightest", "room", "isWhole"};
        row("as wide as the line", 100, 1.0, true);
        row("a little less, not to be tightened", 100, 0.95, false);
        row("a little less", 93, 0.95, true);
        row("too little", 93, 0.9, false);
    }

    void fitsByTighterLettersBeforeItIsCut()
    {
        QFETCH(int, tightest);
        QFETCH(double, room);
        ElidedLabel label(u"line"_s, nullptr);
        QFont font = label.font();
        font.setPixelSize(16);
        label.setFont(font);
        const QStringList names{u"Spieler N"_s, u"Spieler M"_s};
        label.setText(names.join(u" vs "_s), names);
        label.setTightest(tightest);
        label.resize(label.sizeHint().width(), 20);
        const int wholeEnd = lastInk(picture(label));
        label.resize(int(std::ceil(label.sizeHint().width() * room)), 20);

        QTEST(!label.shownText().contains(u'\u2026'), "isWhole");
        for (const QString& end : {u"N\u2069"_s, u"M\u2069"_s}) // which tell the two apart
            QVERIFY(label.shownText().contains(end));
        const int end = lastInk(picture(label));
        QCOMPARE(end < wholeEnd, room < 1);
        QImage ground(1, 20, QImage::Format_RGB32); // and not a cut M
        ground.fill(label.palette().color(QPalette::Window));
        QCOMPARE(picture(label).copy(label.width() - 1, 0, 1, 20), ground);
    }

private:
    static QImage picture(QWidget& widget)
    {
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// The last column of `picture` that differs from its ground.
    static int lastInk(const QImage& picture)
    {
        int x = picture.width() - 1;
        while (x > 0 && picture.copy(x, 0, 1, picture.height()) ==
                            picture.copy(picture.width() - 1, 0, 1, picture.height()))
            --x;
        return x;
    }
};

QTEST_MAIN(ElidedLabelTest)
#include "elided_label_test.moc"
