// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/elided_label.h"

#include <QCheckBox>
#include <QPushButton>

/// The first visible text of a label, button or check box in `top` that its place
/// cuts off; empty if there is none. Lines that shorten their text are left out.
inline QString cutText(const QWidget& top)
{
    for (const auto* const widget : top.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const bool hasText = label != nullptr ||
                             qobject_cast<const QPushButton*>(widget) != nullptr ||
                             qobject_cast<const QCheckBox*>(widget) != nullptr;
        if (!hasText || !widget->isVisible() || qobject_cast<const ElidedLabel*>(widget) != nullptr)
            continue;
        const bool isWrapped = label != nullptr && label->wordWrap();
        const QSize needed =
            isWrapped ? QSize(0, label->heightForWidth(label->width())) : widget->sizeHint();
        if (needed.width() > widget->width() || needed.height() > widget->height())
            return widget->objectName() + QStringLiteral(": ") +
                   widget->property("text").toString();
    }
    return {};
}
