// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/plain_area.h"

#include <QScrollArea>

void makePlain(QScrollArea& area, QWidget* content)
{
    area.setFrameShape(QFrame::NoFrame);
    area.setFocusPolicy(Qt::NoFocus);
    area.setWidget(content);
    // Under Wayland a window that changes to full screen without a change of size
    // gets a new, empty buffer, and Qt paints all but opaque widgets into it.
    area.viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}
