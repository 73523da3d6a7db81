// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/fonts.h"

#include <QFontDatabase>

namespace {

QFont sized(QFont font, int points, QFont::Weight weight)
{
    font.setPixelSize(points);
    font.setWeight(weight);
    return font;
}

} // namespace

QFont systemFont(int points, QFont::Weight weight)
{
    return sized(QFontDatabase::systemFont(QFontDatabase::GeneralFont), points, weight);
}

QFont monospacedFont(int points, QFont::Weight weight)
{
    return sized(QFontDatabase::systemFont(QFontDatabase::FixedFont), points, weight);
}
