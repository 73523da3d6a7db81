// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
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

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    // Rich text is asked for, so that the name "<b>" is not taken for it.
    if (const QString whole = wholeText(); shownText() != whole)
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<p>") + whole.toHtmlEscaped() + QStringLiteral("</p>"),
                           this);
    else
        QToolTip::hideText();
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
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

QString ElidedLabel::shownText() const
{
    const QFontMetrics metrics = fontMetrics();
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

    QString line;
    for (const Piece& piece : m_pieces) {
        const QString text = oneLine(piece.text);
        line += piece.isName ? isolated(metrics.elidedText(text, Qt::ElideRight, share)) : text;
    }
    return metrics.elidedText(line, Qt::ElideRight, width);
}
