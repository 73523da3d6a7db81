// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vector_board.h"

#include "ui/card_faces.h"
#include "ui/colours.h"
#include "ui/screen_metrics.h"
#include "ui/turning_card.h"

#include <QPainter>
#include <QPainterPath>

namespace {

using namespace CardFaces;

void drawBack(QPainter& painter, const QRectF& card)
{
    paintGround(painter, card, QColor::fromRgbF(0.08F, 0.66F, 0.74F));
    QLinearGradient ground(card.topLeft(), card.bottomRight());
    ground.setColorAt(0, QColor::fromRgbF(0.08F, 0.66F, 0.74F));
    ground.setColorAt(1, QColor::fromRgbF(0.03F, 0.42F, 0.54F));
    painter.setPen(QPen(Colours::withOpacity(Qt::white, 0.25), 2));
    painter.setBrush(ground);
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
    paintLogo(painter, card);
}

void drawFront(QPainter& painter, const QRectF& card, const VectorBoard::Card& shown)
{
    paintVeil(painter, card, Colours::withOpacity(Colours::gray, 0.12));
    const QRectF frame = card.adjusted(imageInset, imageInset, -imageInset, -imageInset);
    QPainterPath path;
    path.addRoundedRect(frame, cornerRadius - imageInset, cornerRadius - imageInset);
    painter.save();
    painter.setClipPath(path);
    painter.drawImage(frame, shown.picture);
    painter.restore();
    paintFrontOutline(painter, card, shown.look.found);
}

} // namespace

VectorBoard::VectorBoard(std::vector<Card> shown, int columns, double cardSize)
    : cards(std::move(shown))
    , m_columns(columns)
    , m_cardSize(cardSize)
{
}

void VectorBoard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const double pitch = m_cardSize + ScreenMetrics::spacing;
    for (std::size_t i = 0; i < cards.size(); ++i) {
        const int row = static_cast<int>(i) / m_columns;
        const int column = static_cast<int>(i) % m_columns;
        const QRectF place(20 + column * pitch, 20 + row * pitch, m_cardSize, m_cardSize);
        const CardLook& look = cards[i].look;
        if (look.back > 0) {
            painter.setTransform(turnProjection(place, look.turn));
            painter.setOpacity(look.back);
            drawBack(painter, place);
        }
        if (look.front > 0) {
            painter.setTransform(turnProjection(place, look.turn - 180));
            painter.setOpacity(look.front);
            drawFront(painter, place, cards[i]);
        }
    }
}
