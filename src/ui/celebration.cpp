// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/celebration.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double lifetime = 1.16; // seconds
constexpr int pairs = 48;

/// A fixed scatter that looks like chance: multiples of an irrational number.
double scatter(int number, double step)
{
    const double multiple = number * step + 0.5;
    return multiple - std::floor(multiple);
}

double wave(double turns)
{
    return std::sin(2 * std::numbers::pi * turns);
}

double opacity(double age)
{
    if (age < 0.10)
        return age / 0.10;
    return age < 0.60 ? 1 : (1 - age) / 0.40;
}

} // namespace

Celebration::Celebration(const DeckLook& look, const QRect& area, QWidget* parent)
    : QWidget(parent)
    , m_colours(look.colours)
    , m_frames(this)
    , m_begin(frameTime())
{
    setObjectName(QStringLiteral("celebration"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(area);
    connect(&m_frames, &FrameTimer::frame, this, [this] {
        if (frameTime() - m_begin < lifetime) {
            update();
            return;
        }
        m_frames.stop();
        hide();
        deleteLater();
    });
    m_frames.start();
}

void Celebration::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double age = frameTime() - m_begin;
    for (int number = 0; number < pairs; ++number)
        paintPair(painter, number, age);
}

void Celebration::paintPair(QPainter& painter, int number, double age) const
{
    const double own = std::clamp(age - 0.16 * scatter(number, 0.56984), 0.0, 1.0);
    if (own <= 0 || own >= 1)
        return;

    // The pairs start along an arch and sink, gently at first.
    const double along = 2 * (number + 0.5) / pairs - 1;
    const double startX = width() / 2.0 + along * (width() / 2.0 - 14) +
                          (scatter(number, 0.3247) - 0.5) * width() / pairs;
    const double startY = height() * (0.18 * along * along + 0.44 * scatter(number, 0.618034));
    const double way = height() * (0.32 + 0.14 * scatter(number, 0.2887));
    const double phase = scatter(number, 0.437);
    const double x = startX + 16 * wave(0.8 * own + phase);
    const double y = startY + way * (0.45 * own + 0.55 * own * own);
    const double sway = 18 * wave(0.8 * own + phase + 0.25);
    const double size = std::round(9 + 8 * std::pow(scatter(number, 0.754878), 2));

    const QColor front =
        QColor::fromRgb(m_colours[static_cast<std::size_t>((5 * number + number / 6) % 6)]);
    const QColor back =
        QColor::fromRgbF(front.redF() * 0.86F, front.greenF() * 0.86F, front.blueF() * 0.86F);
    painter.setOpacity(opacity(own));
    for (const int card : {0, 1}) {
        const double side = card == 0 ? -1 : 1;
        // Each turns about its own upright axis, a little after its partner.
        const double facing = wave(0.75 * own + phase + 0.07 * card + 0.25);
        painter.save();
        painter.translate(x, y);
        painter.rotate(sway);
        painter.translate(side * 0.68 * size, 0);
        painter.rotate(side * 14);
        painter.scale(std::max(0.16, std::abs(facing)), 1);
        painter.setBrush(facing < 0 ? back : front);
        painter.drawRoundedRect(QRectF(-size / 2, -size / 2, size, size), 0.22 * size, 0.22 * size);
        painter.restore();
    }
}
