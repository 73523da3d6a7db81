// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QHelpEvent;
class QWidget;

/// `text` as the text of a tooltip: escaped, since a name that looks like markup
/// ("<b>") would be taken for it.
[[nodiscard]] QString toolTipText(const QString& text);

/// What `widget` answers to `event`, which asks for its tooltip: `whole`, unless that
/// is what it shows anyway.
void tellWholeText(const QHelpEvent& event, QWidget* widget, const QString& shown,
                   const QString& whole);
