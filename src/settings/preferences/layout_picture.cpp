// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preferences/layout_picture.h"

#include "game/rules/card_layout.h"
#include "ui/colours.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int placeEdge = 10;
constexpr int gap = 3;
constexpr qreal cornerRadius = 2.5;

constexpr int mostColumns = std::ranges::max(cardLayouts, {}, &CardLayout::columns).columns;
constexpr int mostRows = std::ranges::max(cardLayouts, {}, &CardLayout::rows).rows;

constexpr int length(int places)
{
    return places * (placeEdge + gap) - gap;
}

} // namespace

LayoutPicture::LayoutPicture(QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(LayoutPicture::sizeHint());
}

QSize LayoutPicture::sizeHint() const
{
    return {length(mostColumns), length(mostRows)};
}

void LayoutPicture::setAmountCards(int amountCards)
{
    m_amountCards = amountCards;
    update();
}

void LayoutPicture::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

void LayoutPicture::paintEvent(QPaintEvent*)
{
    const CardLayout& layout = cardLayout(m_amountCards);
    const QBrush back = Colours::cardBack(rect());
    const QBrush free =
        Colours::withOpacity(palette().color(QPalette::Active, QPalette::WindowText),
                             Colours::isDark(palette()) ? 0.12 : 0.10);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int row = 0; row < mostRows; ++row) {
        for (int column = 0; column < mostColumns; ++column) {
            const bool isUsed = row < layout.rows && column < layout.columns;
            painter.setOpacity(isUsed && !isEnabled() ? 0.45 : 1);
            painter.setBrush(isUsed ? back : free);
            painter.drawRoundedRect(column * (placeEdge + gap), row * (placeEdge + gap), placeEdge,
                                    placeEdge, cornerRadius, cornerRadius);
        }
    }
}
