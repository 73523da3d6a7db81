// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Lines that quote names too long for them, or written from right to left.
#include "ui/elided_label.h"

#include "support/rows.h"

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
        row("two that differ at the end", {wide + u" 1\U0001F98A"_s, wide + u" 2\U0001F98B"_s});
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
        if (line.size() < 1000)
            QCOMPARE(label.text(), line);
        const QStringList quoted = label.shownText().split(u'\u2068');
        if (names.size() == 2)
            QVERIFY(quoted[1].section(u'\u2069', 0, 0) != quoted[2].section(u'\u2069', 0, 0));
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
        const int height = label.sizeHint().height();
        label.setText(u"1. Ann – 01:07"_s, {u"Ann"_s});
        QCOMPARE(height, label.sizeHint().height());
        const QImage plain = picture(label);
        const int timeWidth = label.fontMetrics().horizontalAdvance(u"01:07"_s) - 2;
        QCOMPARE(shown.copy(rank), plain.copy(rank));
        QCOMPARE(shown.copy(end - timeWidth, 0, timeWidth, 20),
                 plain.copy(lastInk(plain) + 1 - timeWidth, 0, timeWidth, 20));
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
