// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(const QString& objectName, QWidget* parent)
    : QLabel(parent)
{
    setObjectName(objectName);
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setText(const QString& text)
{
    constexpr qsizetype mostCharacters = 2000;
    if (text.size() <= mostCharacters) {
        QLabel::setText(text);
        return;
    }
    // Not between the halves of one character.
    const bool isSplit = text[mostCharacters - 1].isHighSurrogate();
    QLabel::setText(text.first(mostCharacters - (isSplit ? 1 : 0)) + QChar(u'\u2026'));
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
    if (shownText() != text())
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<p>") + text().toHtmlEscaped() + QStringLiteral("</p>"),
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

QString ElidedLabel::shownText() const
{
    // A name may hold line breaks: pasted, or from an edited file.
    QString line = text();
    for (QChar& character : line) {
        if (character.category() == QChar::Other_Control ||
            character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = QLatin1Char(' ');
    }
    return fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
}
