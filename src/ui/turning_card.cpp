// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/turning_card.h"

#include "platform/widgets/appearance.h"
#include "ui/card_faces.h"
#include "ui/colours.h"

#include <QPainter>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double hoverInSeconds = 0.12;
constexpr double hoverOutSeconds = 0.18;
constexpr double releaseSeconds = 0.10;
constexpr double pressedScale = 0.97;
constexpr double hoverVeil = 0.10;
constexpr double pressVeil = 0.16;

double seconds(double full)
{
    return Appearance::isMotionReduced() ? 0 : full;
}

/// A face of the back, drawn once for all cards of a size.
template <class Draw>
QPixmap sharedFace(const char* name, qreal edge, qreal devicePixelRatio, Draw draw)
{
    const QString key =
        QStringLiteral("%1 %2 %3").arg(QString::fromLatin1(name)).arg(edge).arg(devicePixelRatio);
    QPixmap face;
    if (!QPixmapCache::find(key, &face)) {
        face = draw(edge, devicePixelRatio);
        QPixmapCache::insert(key, face);
    }
    return face;
}

/// Draws a face into its place. The margin keeps the edge of a turned one smooth:
/// without antialiasing it looks the same, but is laid in fewer and longer spans.
void drawFace(QPainter& painter, const QPointF& corner, const QPixmap& face)
{
    const bool isTurned = painter.transform().type() == QTransform::TxProject;
    painter.setRenderHint(QPainter::Antialiasing, !isTurned);
    painter.drawPixmap(corner, face);
    painter.setRenderHint(QPainter::Antialiasing);
}

} // namespace

QTransform turnProjection(const QRectF& place, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    const double distance = std::max(place.width(), place.height());
    const QPointF centre = place.center();
    // A point x beside the axis comes to x cos, and nearer by x sin.
    const QTransform turned(std::cos(angle), 0, -std::sin(angle) / distance, 0, 1, 0, 0, 0, 1);
    return QTransform::fromTranslate(-centre.x(), -centre.y()) * turned *
           QTransform::fromTranslate(centre.x(), centre.y());
}

TurningCard::TurningCard(const MemoryCard& card)
    : m_card(card)
{
    standAs(CardLook());
}

bool TurningCard::show(const MemoryCard& card, bool removeMatch)
{
    m_card = card;
    return turnTo(cardLook(card.isFaceUp, card.isMatched, removeMatch));
}

bool TurningCard::turnTo(const CardLook& look, double delay)
{
    bool isNew = false;
    for (std::size_t i = 0; i < m_look.size(); ++i)
        isNew |=
            m_look[i].moveTo(look.*cardLookValues[i], seconds(cardTurnSeconds), easeInOut, delay);
    return isNew;
}

void TurningCard::standAs(const CardLook& look)
{
    for (std::size_t i = 0; i < m_look.size(); ++i)
        m_look[i].jumpTo(look.*cardLookValues[i]);
}

CardLook TurningCard::look() const
{
    CardLook now;
    for (std::size_t i = 0; i < m_look.size(); ++i)
        now.*cardLookValues[i] = m_look[i].value();
    return now;
}

bool TurningCard::setHovered(bool isHovered)
{
    return m_hover.moveTo(isHovered ? 1.0 : 0.0,
                          seconds(isHovered ? hoverInSeconds : hoverOutSeconds), easeOut);
}

bool TurningCard::setPressed(bool isPressed)
{
    return m_press.moveTo(isPressed ? 1.0 : 0.0, isPressed ? 0 : seconds(releaseSeconds), easeOut);
}

bool TurningCard::isMoving() const
{
    return std::ranges::any_of(m_look, &Transition::isMoving) || m_hover.isMoving() ||
           m_press.isMoving();
}

bool TurningCard::isTurning() const
{
    static_assert(cardLookValues.front() == &CardLook::turn);
    return m_look.front().isMoving();
}

QRect TurningCard::reach(const QRectF& place) const
{
    const qreal margin = CardFaces::margin(1);
    const QRectF face = place.adjusted(-margin, -margin, margin, margin);
    const double turn = look().turn;
    if (turn <= 0 || turn >= 180)
        return face.toAlignedRect();
    // Turned by more than a right angle the other side is nearer, by as much.
    return turnProjection(place, turn)
        .mapRect(face)
        .united(turnProjection(place, turn - 180).mapRect(face))
        .toAlignedRect();
}

void TurningCard::paint(QPainter& painter, const QRectF& place)
{
    const CardLook now = look();
    if (now.overall <= 0)
        return;
    const qreal ratio = painter.device()->devicePixelRatioF();
    prepareFaces(place.width(), ratio);
    painter.save();
    const double scale = Appearance::isMotionReduced() ? 1 : mix(1, pressedScale, m_press.value());
    if (scale < 1) {
        const QPointF centre = place.center();
        painter.setTransform(QTransform::fromTranslate(-centre.x(), -centre.y()) *
                                 QTransform::fromScale(scale, scale) *
                                 QTransform::fromTranslate(centre.x(), centre.y()),
                             true);
    }
    const QTransform flat = painter.transform();
    const bool isEdgeOn = std::abs(std::cos(now.turn * std::numbers::pi / 180)) < 0.002;
    if (now.back > 0 && !isEdgeOn) {
        painter.setTransform(turnProjection(place, now.turn) * flat);
        painter.setOpacity(now.overall * now.back);
        paintBack(painter, place, ratio);
    }
    if (now.front > 0 && !isEdgeOn) {
        painter.setTransform(turnProjection(place, now.turn - 180) * flat);
        painter.setOpacity(now.overall * now.front);
        paintFront(painter, place, ratio, now.found);
    }
    painter.restore();
}

void TurningCard::prepareFaces(qreal edge, qreal devicePixelRatio)
{
    if (edge == m_edge && devicePixelRatio == m_devicePixelRatio)
        return;
    m_edge = edge;
    m_devicePixelRatio = devicePixelRatio;
    m_front = QPixmap();
}

void TurningCard::paintBack(QPainter& painter, const QRectF& place, qreal devicePixelRatio)
{
    const qreal margin = CardFaces::margin(devicePixelRatio);
    const QPointF corner = place.topLeft() - QPointF(margin, margin);
    // A held card is dark, not light and dark at once.
    const double press = m_press.value();
    const double hover = m_hover.value() * (1 - press);
    if (hover + press <= 0) {
        drawFace(painter, corner,
                 sharedFace("back", m_edge, devicePixelRatio, CardFaces::backSide));
        return;
    }
    drawFace(painter, corner,
             sharedFace("ground", m_edge, devicePixelRatio, CardFaces::backGround));
    CardFaces::paintVeil(painter, place, Colours::withOpacity(Qt::white, hoverVeil * hover));
    CardFaces::paintVeil(painter, place, Colours::withOpacity(Qt::black, pressVeil * press));
    CardFaces::paintLogo(painter, place);
}

void TurningCard::paintFront(QPainter& painter, const QRectF& place, qreal devicePixelRatio,
                             qreal found)
{
    if (m_front.isNull())
        m_front = CardFaces::frontSide(m_card.image.image, m_edge, devicePixelRatio);
    if (m_ground.isValid())
        CardFaces::paintGround(painter, place, m_ground);
    const qreal margin = CardFaces::margin(devicePixelRatio);
    drawFace(painter, place.topLeft() - QPointF(margin, margin), m_front);
    CardFaces::paintFrontOutline(painter, place, found);
}
