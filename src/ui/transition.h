// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/frame_clock.h"

#include <QEasingCurve>
#include <algorithm>

/// The number `share` of the way from `from` to `to`.
[[nodiscard]] constexpr double mix(double from, double to, double share)
{
    return from + (to - from) * share;
}

/// Slow at both ends: the cubic Bézier curve (0.42, 0, 0.58, 1), progress and
/// result from 0 to 1.
[[nodiscard]] double easeInOut(double progress);

/// Fast at first: 1 - (1 - progress)².
[[nodiscard]] double easeOut(double progress);

/// A number on its way to another, at first resting at 0. A change that overtakes it
/// goes on from where it is.
class Transition {
public:
    using Curve = double (*)(double progress);

    /// Moves to `target` within `seconds`, beginning after `delay`; 0 seconds
    /// are a jump. False, and nothing changes, if that is its target already.
    bool moveTo(double target, double seconds, Curve curve, double delay = 0)
    {
        if (target == m_to)
            return false;
        m_from = value();
        m_to = target;
        m_begin = frameTime() + delay;
        m_seconds = seconds;
        m_curve = curve;
        return true;
    }

    /// Has `value` from now on, and rests.
    void jumpTo(double value)
    {
        m_to = value;
        m_seconds = 0;
    }

    /// Where it is at this moment of frameTime().
    [[nodiscard]] double value() const
    {
        const double share = progress();
        return share >= 1 ? m_to : mix(m_from, m_to, m_curve(share));
    }
    [[nodiscard]] bool isMoving() const { return progress() < 1; }

private:
    [[nodiscard]] double progress() const
    {
        return m_seconds <= 0 ? 1 : std::clamp((frameTime() - m_begin) / m_seconds, 0.0, 1.0);
    }

    double m_from = 0;
    double m_to = 0;
    double m_begin = 0;
    double m_seconds = 0;
    Curve m_curve = easeInOut;
};
