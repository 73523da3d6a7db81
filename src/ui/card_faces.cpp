// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/card_faces.h"

#include "ui/colours.h"
#include "ui/logo.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

using namespace CardFaces;

void strokeOutline(QPainter& painter, const QRectF& card, const QColor& colour, qreal width)
{
    QPen pen(colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setMiterLimit(10);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
}

/// A shadow of blur radius 3 without offset, black at 33 %: rings outwards from
/// the edge, each as dark as the blurred edge is there.
void paintShadow(QPainter& painter, const QRectF& card)
{
    constexpr qreal opacity = 0.33;
    constexpr qreal deviation = 1.5; // a Gaussian of half the blur radius
    constexpr qreal step = 0.5;
    painter.setBrush(Qt::NoBrush);
    for (qreal distance = step / 2; distance < shadowReach; distance += step) {
        const qreal share = 0.5 * std::erfc(distance / (deviation * std::sqrt(2.0)));
        painter.setPen(QPen(Colours::withOpacity(Qt::black, opacity * share), step));
        painter.drawRoundedRect(card.adjusted(-distance, -distance, distance, distance),
                                cornerRadius + distance, cornerRadius + distance);
    }
}

} // namespace

void CardFaces::paintBackSide(QPainter& painter, const QRectF& card)
{
    paintShadow(painter, card);

    QLinearGradient ground(card.topLeft(), card.bottomRight());
    ground.setColorAt(0, QColor::fromRgbF(0.08F, 0.66F, 0.74F));
    ground.setColorAt(1, QColor::fromRgbF(0.03F, 0.42F, 0.54F));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
    strokeOutline(painter, card, Colours::withOpacity(Qt::white, 0.25), 2);

    const qreal edge = 0.35 * std::min(card.width(), card.height());
    const QPixmap logo = logoPixmap(edge, painter.device()->devicePixelRatioF());
    const QSizeF size = logo.deviceIndependentSize();
    painter.drawPixmap(card.center() - QPointF(size.width() / 2, size.height() / 2), logo);
}

void CardFaces::paintFrontSide(QPainter& painter, const QRectF& card, const QImage& picture,
                               bool isMatched)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colours::withOpacity(Colours::gray, 0.12));
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);

    const QRectF frame = card.adjusted(imageInset, imageInset, -imageInset, -imageInset);
    const qreal radius = std::max(0.0, cornerRadius - imageInset);
    QRectF source(QPointF(), frame.size().scaled(picture.size(), Qt::KeepAspectRatio));
    source.moveCenter(QRectF(picture.rect()).center());
    QPainterPath clip;
    clip.addRoundedRect(frame, radius, radius);
    painter.save();
    painter.setClipPath(clip, Qt::IntersectClip);
    painter.drawImage(frame, picture, source);
    painter.restore();

    if (isMatched)
        strokeOutline(painter, card, Colours::withOpacity(Colours::yellow, 0.95), 5);
    else
        strokeOutline(painter, card, Colours::withOpacity(Colours::gray, 0.40), 2);
}
