// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_card.h"
#include "ui/card_look.h"
#include "ui/transition.h"

#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QTransform>

class QPainter;

/// A card as it is drawn: its faces, its turn, pointer and press.
///
/// It has no place of its own: whoever shows it passes the square that it
/// fills, in points.
class TurningCard {
public:
    /// Shows its back, whatever the state of `card`, until it is told otherwise.
    explicit TurningCard(const MemoryCard& card);

    [[nodiscard]] const MemoryCard& card() const { return m_card; }

    // Each of these is true if the card looks, or will look, different for it.

    /// Takes over the card's state and turns to its look.
    bool show(const MemoryCard& card, bool removeMatch);
    /// Comes to `look` within cardTurnSeconds, beginning after `delay` seconds;
    /// at once where motion is reduced.
    bool turnTo(const CardLook& look, double delay = 0);
    /// The pointer lies over the card, and it can be turned.
    bool setHovered(bool isHovered);
    /// The card is held down, and it can be turned.
    bool setPressed(bool isPressed);

    /// Has `look` from now on, without motion.
    void standAs(const CardLook& look);
    /// Lies on others instead of the bare window, whose `colour` keeps them
    /// from showing through its face.
    void setGround(const QColor& colour) { m_ground = colour; }

    [[nodiscard]] CardLook look() const;
    /// Anything of the look changes; it will have to be painted again.
    [[nodiscard]] bool isMoving() const;
    /// The card stands out of the board's plane.
    [[nodiscard]] bool isTurning() const;

    /// Where the card in `place` paints at this moment, in whole points.
    [[nodiscard]] QRect reach(const QRectF& place) const;

    /// Draws the card in `place` as it looks at this moment.
    void paint(QPainter& painter, const QRectF& place);

private:
    void paintBack(QPainter& painter, const QRectF& place, qreal devicePixelRatio);
    void paintFront(QPainter& painter, const QRectF& place, qreal devicePixelRatio, qreal found);
    void prepareFaces(qreal edge, qreal devicePixelRatio);

    MemoryCard m_card;
    std::array<Transition, cardLookValues.size()> m_look{}; ///< In the order of cardLookValues.
    Transition m_hover{};
    Transition m_press{};
    QColor m_ground{}; ///< Invalid on the bare window.
    QPixmap m_front{};
    qreal m_edge = 0;
    qreal m_devicePixelRatio = 0;
};

/// The projection of a card in `place` turned by `degrees` about its vertical
/// axis: a true perspective, seen from as far as the card is wide.
[[nodiscard]] QTransform turnProjection(const QRectF& place, double degrees);
