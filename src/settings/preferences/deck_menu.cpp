// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preferences/deck_menu.h"

#include "platform/widgets/whole_text.h"

#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

bool DeckMenu::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    tellWholeText(*static_cast<QHelpEvent*>(event), this, shownTitle(option), currentText());
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
