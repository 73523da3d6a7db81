// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/whole_text.h"

#include <QHelpEvent>
#include <QToolTip>

QString toolTipText(const QString& text)
{
    return QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>");
}

void tellWholeText(const QHelpEvent& event, QWidget* widget, const QString& shown,
                   const QString& whole)
{
    if (shown == whole)
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), toolTipText(whole), widget);
}
