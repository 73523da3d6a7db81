// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/elided_label.h"

#include "platform/widgets/whole_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <map>
#include <utility>

namespace {

QString limited(const QString& text)
{
    constexpr qsizetype mostCharacters = 2000;
    if (text.size() <= mostCharacters)
        return text;
    // Not between the halves of one character.
    const bool isSplit = text[mostCharacters - 1].isHighSurrogate();
    return text.first(mostCharacters - (isSplit ? 1 : 0)) + QChar(u'\u2026');
}

/// `text` without line breaks: a name may hold some, pasted, or from an edited
/// file.
QString oneLine(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control ||
            character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = QLatin1Char(' ');
    }
    return text;
}

/// `name` between the marks that keep its direction of writing from its
/// surroundings (Unicode Standard Annex 9, first strong isolate).
QString isolated(const QString& name)
{
    return QChar(u'\u2068') + name + QChar(u'\u2069');
}

/// Whether different `names` would read the same when cut off at `width`.
bool lookAlike(const QStringList& names, const QFontMetrics& metrics, int width)
{
    std::map<QString, QString> seen; // what is shown, and what it stands for
    return std::ranges::any_of(names, [&](const QString& name) {
        const QString shown = metrics.elidedText(name, Qt::ElideRight, width);
        return seen.try_emplace(shown, name).first->second != name;
    });
}

/// How many characters all `names` begin with, up to the blanks before what differs.
qsizetype commonStart(const QStringList& names)
{
    const auto [first, last] = std::ranges::minmax(names);
    qsizetype end = std::ranges::mismatch(first, last).in1 - first.begin();
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, first);
    letters.setPosition(end);
    if (!letters.isAtBoundary())
        end = letters.toPreviousBoundary();
    while (end > 0 && first[end - 1].isSpace())
        --end;
    return end;
}

/// `name` in `width`, cut off at its end, or else within the first `alike` characters,
/// so that what follows them can be read.
QString shortened(const QString& name, qsizetype alike, const QFontMetrics& metrics, int width)
{
    const QString end = name.sliced(alike);
    const int endWidth = metrics.horizontalAdvance(end);
    if (alike == 0 || metrics.horizontalAdvance(name) <= width)
        return metrics.elidedText(name, Qt::ElideRight, width);
    if (endWidth > width / 2)
        return metrics.elidedText(name, Qt::ElideMiddle, width);
    return metrics.elidedText(name.first(alike), Qt::ElideRight, width - endWidth) + end;
}

} // namespace

ElidedLabel::ElidedLabel(const QString& objectName, QWidget* parent)
    : QLabel(parent)
{
    setObjectName(objectName);
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setText(const QString& text, const QStringList& names)
{
    std::vector<Piece> pieces;
    qsizetype begin = 0;
    for (const QString& name : names) {
        const qsizetype place = name.isEmpty() ? -1 : text.indexOf(name, begin);
        if (place < 0)
            continue;
        pieces.push_back({.text = limited(text.mid(begin, place - begin))});
        pieces.push_back({.text = limited(name), .isName = true});
        begin = place + name.size();
    }
    pieces.push_back({.text = limited(text.mid(begin))});

    // Every tick of the clock sets all lines anew, and most say what they said.
    if (pieces == m_pieces)
        return;
    m_pieces = std::move(pieces);

    QString kept;
    for (const Piece& piece : m_pieces)
        kept += piece.text;
    QLabel::setText(kept);
    update();
}

void ElidedLabel::setTightest(int percent)
{
    m_tightest = percent;
    update();
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

QSize ElidedLabel::sizeHint() const
{
    return {QLabel::sizeHint().width(), fontMetrics().height()};
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    tellWholeText(*static_cast<QHelpEvent*>(event), this, shownText(), wholeText());
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(shownFont());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), shownText(), foregroundRole());
}

QString ElidedLabel::wholeText() const
{
    QString line;
    for (const Piece& piece : m_pieces)
        line += piece.isName ? isolated(oneLine(piece.text)) : oneLine(piece.text);
    return line;
}

QFont ElidedLabel::shownFont() const
{
    const QString whole = wholeText();
    QFont shown = font();
    for (int percent = 99; percent >= m_tightest; --percent) {
        if (QFontMetrics(shown).horizontalAdvance(whole) <= contentsRect().width())
            break;
        shown.setLetterSpacing(QFont::PercentageSpacing, percent);
    }
    return shown;
}

QString ElidedLabel::shownText() const
{
    const QFontMetrics metrics(shownFont());
    const int width = contentsRect().width();
    const QString whole = wholeText();
    if (metrics.horizontalAdvance(whole) <= width)
        return whole;

    // The names share what the rest leaves; what a short one does not need is for
    // the longer ones.
    int room = width - static_cast<int>(m_pieces.size()); // each may be rounded
    std::vector<int> lengths;
    for (const Piece& piece : m_pieces) {
        const int length = metrics.horizontalAdvance(oneLine(piece.text));
        if (piece.isName)
            lengths.push_back(length);
        else
            room -= length;
    }
    std::ranges::sort(lengths);
    int share = 0;
    for (auto left = static_cast<int>(lengths.size()); const int length : lengths) {
        share = room / left--;
        room -= std::min(length, share);
    }

    QStringList names;
    for (const Piece& piece : m_pieces) {
        if (piece.isName)
            names << oneLine(piece.text);
    }
    const qsizetype alike = lookAlike(names, metrics, share) ? commonStart(names) : 0;

    QString line;
    for (const Piece& piece : m_pieces) {
        const QString text = oneLine(piece.text);
        line += piece.isName ? isolated(shortened(text, alike, metrics, share)) : text;
    }
    return metrics.elidedText(line, Qt::ElideRight, width);
}
