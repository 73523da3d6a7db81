// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// Fusion with outlines of its controls in the colour of the text, for high
/// contrast. Its own fade into the window: on a dark one an empty check box can
/// hardly be seen (WCAG 1.4.11 asks for 3:1).
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT

public:
    OutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};
