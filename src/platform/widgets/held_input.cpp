// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/held_input.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

bool isKeyPress(const QEvent& event)
{
    return event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
}

bool isMousePress(const QEvent& event)
{
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

bool isRepeat(const QEvent& event)
{
    if (isKeyPress(event))
        return static_cast<const QKeyEvent&>(event).isAutoRepeat();
    return event.type() == QEvent::MouseButtonDblClick ||
           static_cast<const QMouseEvent&>(event).flags().testFlag(
               Qt::MouseEventCreatedDoubleClick);
}

HeldInput::HeldInput()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldInput::eventFilter(QObject* watched, QEvent* event)
{
    if (!isKeyPress(*event) && !isMousePress(*event))
        return QObject::eventFilter(watched, event);
    if (!isRepeat(*event))
        m_isHeld = false;
    if (m_isHeld)
        event->accept(); // no shortcut, no window behind
    return m_isHeld;
}
