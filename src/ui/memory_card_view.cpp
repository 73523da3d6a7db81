// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/memory_card_view.h"

#include <QAccessible>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>

namespace {

/// Whether Qt sends the new name itself with the event; with an older Qt readers are
/// silent. Orca 43 with Qt 6.4 and Orca 48 with Qt 6.8 were heard.
constexpr bool readersSpeakNewNames = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

} // namespace

MemoryCardView::MemoryCardView(const MemoryCard& card, std::size_t index, QWidget* parent)
    : QAbstractButton(parent)
    , m_face(card)
    , m_index(index)
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
        rename(name);
    m_canBeTurned = canBeTurned;
    if (m_face.show(card, removeMatch))
        Q_EMIT faceChanged();
    followPointer();
}

void MemoryCardView::rename(const QString& name)
{
    if (!readersSpeakNewNames || !hasFocus()) {
        setAccessibleName(name);
        return;
    }
    // Readers speak a new name of what has the focus, but what happened to the card is
    // announced. They are told once the focus has gone; that it is still here has them
    // forget the name that they know.
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    setAccessibleName(name);
    QAccessible::installUpdateHandler(handler);
    m_owesName = true;
    QAccessibleEvent focus(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

void MemoryCardView::focusOutEvent(QFocusEvent* event)
{
    QAbstractButton::focusOutEvent(event);
    if (m_owesName)
        QMetaObject::invokeMethod(this, &MemoryCardView::tellName, Qt::QueuedConnection);
}

void MemoryCardView::tellName()
{
    if (!m_owesName || hasFocus())
        return;
    m_owesName = false;
    QAccessibleEvent change(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&change);
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
