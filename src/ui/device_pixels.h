// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

class QWidget;

/// Lengths and places on whole device pixels, so that pictures stay sharp and of
/// one size wherever they lie, also at a pixel ratio such as 1.25.
namespace DevicePixels {

/// `length` points rounded to whole device pixels, in points.
[[nodiscard]] qreal whole(qreal length, qreal devicePixelRatio);

/// `point` of `widget` moved to the nearest corner of a device pixel of its
/// window.
[[nodiscard]] QPointF nearest(const QWidget& widget, QPointF point);

} // namespace DevicePixels
