// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preferences/deck_menu.h"

#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

bool DeckMenu::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    // Rich text is asked for, so that an album "<b>" is not taken for it.
    if (shownTitle(option) != currentText())
        QToolTip::showText(
            static_cast<QHelpEvent*>(event)->globalPos(),
            QStringLiteral("<p>") + currentText().toHtmlEscaped() + QStringLiteral("</p>"), this);
    else
        QToolTip::hideText();
    return true;
}

void DeckMenu::paintEvent(QPaintEvent*)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = shownTitle(option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QString DeckMenu::shownTitle(const QStyleOptionComboBox& option) const
{
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // Styles leave a point free on both sides of a title.
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, room.width() - 2);
}
