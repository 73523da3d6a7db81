// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPalette>
#include <QRectF>

class QPainter;

/// How the two faces of a card are drawn.
namespace CardFaces {

inline constexpr qreal cornerRadius = 14; ///< Of the card's outline, in points.
inline constexpr qreal imageInset = 8;    ///< From the card's edge to its picture.
inline constexpr qreal shadowReach = 4;   ///< How far the back's shadow reaches out.

/// The back of a card that fills `card`, and its shadow around it.
void paintBackSide(QPainter& painter, const QRectF& card);

/// The picture's face of a card that fills `card`. `picture` is cut to fill
/// its frame; a found pair has a yellow outline.
void paintFrontSide(QPainter& painter, const QRectF& card, const QImage& picture, bool isMatched);

} // namespace CardFaces
