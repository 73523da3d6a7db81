// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/colours.h"

namespace Colours {

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
    return isDark(palette) ? QColor(0x9C, 0xCB, 0xFF) : QColor(0x0A, 0x4D, 0xB8);
}

} // namespace Colours
