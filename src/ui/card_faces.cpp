// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/card_faces.h"

#include "platform/widgets/logo.h"
#include "ui/colours.h"
#include "ui/device_pixels.h"
#include "ui/transition.h"

#include <QPainter>
#include <algorithm>
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
    constexpr int rings = 8;
    constexpr qreal step = 0.5;
    painter.setBrush(Qt::NoBrush);
    for (int ring = 0; ring < rings; ++ring) {
        const qreal distance = (ring + 0.5) * step;
        const qreal share = 0.5 * std::erfc(distance / (deviation * std::sqrt(2.0)));
        painter.setPen(QPen(Colours::withOpacity(Qt::black, opacity * share), step));
        painter.drawRoundedRect(card.adjusted(-distance, -distance, distance, distance),
                                cornerRadius + distance, cornerRadius + distance);
    }
}

/// A transparent pixmap for a face of `edge`, on which `paint` draws it.
template <class Paint>
QPixmap facePixmap(qreal edge, qreal devicePixelRatio, Paint paint)
{
    const qreal around = margin(devicePixelRatio);
    const int pixels = qCeil((edge + 2 * around) * devicePixelRatio);
    QPixmap pixmap(pixels, pixels);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paint(painter, QRectF(around, around, edge, edge));
    return pixmap;
}

void paintBackGround(QPainter& painter, const QRectF& card)
{
    paintShadow(painter, card);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colours::cardBack(card));
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
    strokeOutline(painter, card, Colours::withOpacity(Qt::white, 0.25), 2);
}

} // namespace

qreal CardFaces::margin(qreal devicePixelRatio)
{
    return std::ceil(6 * devicePixelRatio) / devicePixelRatio;
}

QPixmap CardFaces::backGround(qreal edge, qreal devicePixelRatio)
{
    return facePixmap(edge, devicePixelRatio, paintBackGround);
}

QPixmap CardFaces::backSide(qreal edge, qreal devicePixelRatio)
{
    return facePixmap(edge, devicePixelRatio, [](QPainter& painter, const QRectF& card) {
        paintBackGround(painter, card);
        paintLogo(painter, card);
    });
}

QImage CardFaces::filling(const QImage& picture, QSize pixels)
{
    const QImage scaled =
        picture.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return scaled.copy((scaled.width() - pixels.width()) / 2,
                       (scaled.height() - pixels.height()) / 2, pixels.width(), pixels.height());
}

QPixmap CardFaces::frontSide(const QImage& picture, qreal edge, qreal devicePixelRatio)
{
    return facePixmap(edge, devicePixelRatio, [&](QPainter& painter, const QRectF& card) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Colours::withOpacity(Colours::gray, 0.12));
        painter.drawRoundedRect(card, cornerRadius, cornerRadius);
        if (picture.isNull())
            return;

        // Scaled at once to the pixels of its frame, then cut by a brush, whose
        // edge is smooth where that of a clip is not.
        const qreal inset = DevicePixels::whole(imageInset, devicePixelRatio);
        const QRectF frame = card.adjusted(inset, inset, -inset, -inset);
        const QSize pixels = (frame.size() * devicePixelRatio).toSize();
        const QImage scaled = filling(picture, pixels);
        // A brush repeats its image, and the frame may end between two pixels: a
        // seam around it keeps the far side out of there.
        constexpr int seam = 1;
        QImage tile(pixels + QSize(2 * seam, 2 * seam), QImage::Format_ARGB32_Premultiplied);
        tile.fill(Qt::transparent);
        QPainter tilePainter(&tile);
        tilePainter.drawImage(tile.rect(), scaled);
        tilePainter.setCompositionMode(QPainter::CompositionMode_Source);
        tilePainter.drawImage(seam, seam, scaled);
        tilePainter.end();
        QBrush brush(tile);
        brush.setTransform(
            QTransform::fromTranslate(frame.x(), frame.y())
                .scale(frame.width() / pixels.width(), frame.height() / pixels.height())
                .translate(-seam, -seam));
        const qreal radius = std::max(0.0, cornerRadius - imageInset);
        painter.setBrush(brush);
        painter.drawRoundedRect(frame, radius, radius);
    });
}

void CardFaces::paintGround(QPainter& painter, const QRectF& card, const QColor& colour)
{
    paintShadow(painter, card);
    painter.setPen(QPen(colour, 2));
    painter.setBrush(colour);
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
}

void CardFaces::paintLogo(QPainter& painter, const QRectF& card)
{
    const qreal edge = 0.35 * std::min(card.width(), card.height());
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPixmap logo = logoPixmap(edge, ratio);
    const QSizeF room = (card.size() - logo.deviceIndependentSize()) / 2;
    painter.drawPixmap(card.topLeft() + QPointF(DevicePixels::whole(room.width(), ratio),
                                                DevicePixels::whole(room.height(), ratio)),
                       logo);
}

void CardFaces::paintVeil(QPainter& painter, const QRectF& card, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(card, cornerRadius, cornerRadius);
}

void CardFaces::paintFrontOutline(QPainter& painter, const QRectF& card, qreal found)
{
    // The colours are mixed as the eye would see them laid over each other.
    const auto share = static_cast<float>(found);
    const auto channel = [share](float from, float to) { return from + (to - from) * share; };
    const QColor& gray = Colours::gray;
    const QColor& yellow = Colours::yellow;
    const QColor colour = QColor::fromRgbF(
        channel(gray.redF(), yellow.redF()), channel(gray.greenF(), yellow.greenF()),
        channel(gray.blueF(), yellow.blueF()), channel(0.40F, 0.95F));
    strokeOutline(painter, card, colour, mix(2, 5, found));
}
