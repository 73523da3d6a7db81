// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/transition.h"

#include <QPointF>

double easeInOut(double progress)
{
    static const QEasingCurve curve = [] {
        QEasingCurve bezier(QEasingCurve::BezierSpline);
        bezier.addCubicBezierSegment(QPointF(0.42, 0), QPointF(0.58, 1), QPointF(1, 1));
        return bezier;
    }();
    return curve.valueForProgress(progress);
}

double easeOut(double progress)
{
    return 1 - (1 - progress) * (1 - progress);
}
