// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/device_pixels.h"

#include <QWidget>
#include <cmath>

qreal DevicePixels::whole(qreal length, qreal devicePixelRatio)
{
    return std::round(length * devicePixelRatio) / devicePixelRatio;
}

QPointF DevicePixels::nearest(const QWidget& widget, QPointF point)
{
    const qreal ratio = widget.devicePixelRatioF();
    const QPointF origin = widget.mapTo(widget.window(), QPoint());
    const QPointF place = origin + point;
    return QPointF(whole(place.x(), ratio), whole(place.y(), ratio)) - origin;
}
