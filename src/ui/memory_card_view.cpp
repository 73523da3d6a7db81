// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/memory_card_view.h"

#include <QEvent>
#include <QKeyEvent>

MemoryCardView::MemoryCardView(const MemoryCard& card, QWidget* parent)
    : QAbstractButton(parent)
    , m_face(card)
{
    setFocusPolicy(Qt::ClickFocus); // the board lets Tab come to one of its cards
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::pressed, this, &MemoryCardView::followPointer);
    connect(this, &QAbstractButton::released, this, &MemoryCardView::followPointer);
}

void MemoryCardView::show(const MemoryCard& card, bool removeMatch, bool canBeTurned,
                          const QString& name)
{
    if (accessibleName() != name)
        setAccessibleName(name);
    m_canBeTurned = canBeTurned;
    if (m_face.show(card, removeMatch))
        Q_EMIT faceChanged();
    followPointer();
}

void MemoryCardView::followPointer()
{
    const bool isPressNew = m_face.setPressed(m_canBeTurned && isDown());
    const bool isHoverNew = m_face.setHovered(m_canBeTurned && underMouse());
    if (isPressNew || isHoverNew)
        Q_EMIT faceChanged();
}

bool MemoryCardView::event(QEvent* event)
{
    const bool isHandled = QAbstractButton::event(event);
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave ||
        event->type() == QEvent::MouseMove)
        followPointer();
    return isHandled;
}

void MemoryCardView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        Q_EMIT navigated(event->key(), event->modifiers());
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A held key is one tap.
        if (!event->isAutoRepeat())
            click();
        return;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void MemoryCardView::paintEvent(QPaintEvent*) {}
