// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/palettes.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <array>
#include <memory>
#include <utility>

QPalette Palettes::dark()
{
    static constexpr std::array<std::pair<QPalette::ColorRole, QRgb>, 20> colours{{
        {QPalette::Window, 0x1E2023},
        {QPalette::WindowText, 0xEDEFF1},
        {QPalette::Text, 0xEDEFF1},
        {QPalette::ButtonText, 0xEDEFF1},
        {QPalette::ToolTipText, 0xEDEFF1},
        {QPalette::Base, 0x303338},
        {QPalette::ToolTipBase, 0x303338},
        {QPalette::AlternateBase, 0x2A2D31},
        {QPalette::PlaceholderText, 0xA9AEB4},
        {QPalette::Button, 0x2A2D31},
        {QPalette::Light, 0x43474D},
        {QPalette::Midlight, 0x373B40},
        {QPalette::Mid, 0x292C30},
        {QPalette::Dark, 0x141618},
        {QPalette::Shadow, 0x0B0C0D},
        {QPalette::Highlight, 0x2F7FD6},
        {QPalette::HighlightedText, 0xFFFFFF},
        {QPalette::BrightText, 0xFFFFFF},
        {QPalette::Link, 0x6AB0FF},
        {QPalette::LinkVisited, 0xC39BFF},
    }};
    QPalette palette;
    for (const auto& [role, colour] : colours)
        palette.setColor(role, QColor::fromRgb(colour));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x7C8187));
    // Darker than a field in use, but an empty check box can still be seen.
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0x282B2F));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4A4F55));
    return palette;
}

QPalette Palettes::light()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    QPalette palette =
        fusion ? fusion->standardPalette() : QApplication::style()->standardPalette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x8C8C8C));
    palette.setColor(QPalette::PlaceholderText, QColor(0x6E6E6E));
    return palette;
}

bool Palettes::isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

QColor Palettes::secondaryText(const QPalette& palette)
{
    return isDark(palette) ? QColor(0xA9, 0xAE, 0xB4) : QColor(0x5F, 0x5F, 0x5F);
}
