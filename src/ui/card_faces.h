// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRectF>

class QPainter;

/// How the two faces of a card are drawn.
///
/// A face is drawn once into a pixmap and then moved about. Around it lies a
/// transparent margin, in which the back's shadow lies, and which keeps the
/// edge smooth when the face is turned.
namespace CardFaces {

inline constexpr qreal cornerRadius = 14; ///< Of the card's outline, in points.
inline constexpr qreal imageInset = 8;    ///< From the card's edge to its picture.

/// Around a face in its pixmap: 6 points, or what makes whole device pixels.
[[nodiscard]] qreal margin(qreal devicePixelRatio);

/// The ground of the back with its outline and shadow, for a card of `edge`.
[[nodiscard]] QPixmap backGround(qreal edge, qreal devicePixelRatio);

/// The whole back: the ground and the logo.
[[nodiscard]] QPixmap backSide(qreal edge, qreal devicePixelRatio);

/// `picture` scaled until it covers `pixels`, and the middle of that.
[[nodiscard]] QImage filling(const QImage& picture, QSize pixels);

/// The picture's face without its outline, `picture` filling its frame.
[[nodiscard]] QPixmap frontSide(const QImage& picture, qreal edge, qreal devicePixelRatio);

/// What keeps a translucent face that fills `card` apart from those under it:
/// the back's shadow and a sheet of `colour`.
void paintGround(QPainter& painter, const QRectF& card, const QColor& colour);

/// The logo in the middle of a back that fills `card`.
void paintLogo(QPainter& painter, const QRectF& card);

/// Lays `colour` over the ground of a back that fills `card`.
void paintVeil(QPainter& painter, const QRectF& card, const QColor& colour);

/// The outline of a picture's face that fills `card`: from grey (`found` 0) to
/// the yellow of a found pair (1).
void paintFrontOutline(QPainter& painter, const QRectF& card, qreal found);

} // namespace CardFaces
