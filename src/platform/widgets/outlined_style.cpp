// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/outlined_style.h"

#include <QComboBox>
#include <QPainter>
#include <QStyleOption>

namespace {

/// Draws just inside `rect`; twice as thick for the control that has the focus.
void outline(const QRect& rect, const QStyleOption& option, QPainter* painter)
{
    constexpr qreal cornerRadius = 2;
    const qreal width = option.state.testFlag(QStyle::State_HasFocus) ? 2 : 1;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option.palette.color(QPalette::WindowText), width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(width / 2, width / 2, -width / 2, -width / 2),
                             cornerRadius, cornerRadius);
    painter->restore();
}

} // namespace

OutlinedStyle::OutlinedStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // Fusion draws a menu of choices as a button into a picture that it keeps.
    const bool isButton =
        element == PE_PanelButtonCommand && qobject_cast<const QComboBox*>(widget) == nullptr;
    if (isButton || element == PE_IndicatorCheckBox || element == PE_FrameLineEdit)
        outline(option->rect, *option, painter);
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox || control == CC_ComboBox)
        outline(option->rect, *option, painter);
    if (control == CC_Slider)
        outline(subControlRect(control, option, SC_SliderHandle, widget), *option, painter);
}
