// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The first visible text of a label, button or check box in `top` that its place
/// cuts off; empty if there is none. Lines that shorten their text are left out.
inline QString cutText(const QWidget& top)
{
    for (const auto* const widget : top.findChildren<QWidget*>()) {
        const bool hasText = widget->inherits("QLabel") || widget->inherits("QPushButton") ||
                             widget->inherits("QCheckBox");
        if (!hasText || !widget->isVisible() || widget->inherits("ElidedLabel"))
            continue;
        const QSize needed = widget->hasHeightForWidth()
                                 ? QSize(0, widget->heightForWidth(widget->width()))
                                 : widget->sizeHint();
        if (needed.width() > widget->width() || needed.height() > widget->height())
            return widget->objectName() + QStringLiteral(": ") +
                   widget->property("text").toString();
    }
    return {};
}
