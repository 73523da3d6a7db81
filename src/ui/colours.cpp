// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/colours.h"

#include "platform/widgets/appearance.h"

namespace Colours {

QLinearGradient cardBack(const QRectF& card)
{
    QLinearGradient back(card.topLeft(), card.bottomRight());
    back.setColorAt(0, QColor(0x14, 0xA8, 0xBD));
    back.setColorAt(1, QColor(0x08, 0x6B, 0x8A));
    return back;
}

QColor withOpacity(QColor colour, double opacity)
{
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

QColor systemBlue(const QPalette& palette)
{
    return isDark(palette) ? QColor(0x0A, 0x84, 0xFF) : QColor(0x00, 0x7A, 0xFF);
}

QColor focusRing(const QPalette& palette)
{
    if (Appearance::isContrastHigh())
        return palette.color(QPalette::WindowText);
    return isDark(palette) ? QColor(0x9C, 0xCB, 0xFF) : QColor(0x0A, 0x4D, 0xB8);
}

} // namespace Colours
