// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/memory_card_view.h"

#include "ui/card_faces.h"

#include <QKeyEvent>
#include <QPainter>

MemoryCardView::MemoryCardView(const MemoryCard& card, QWidget* parent)
    : QAbstractButton(parent)
    , m_card(card)
{
    setFocusPolicy(Qt::StrongFocus);
}

void MemoryCardView::show(const MemoryCard& card, bool removeMatch, const QString& name)
{
    if (accessibleName() != name)
        setAccessibleName(name);
    const bool isChanged = card.isFaceUp != m_card.isFaceUp || card.isMatched != m_card.isMatched ||
                           removeMatch != m_removeMatch;
    if (!isChanged)
        return;
    m_card = card;
    m_removeMatch = removeMatch;
    constexpr int reach = static_cast<int>(CardFaces::shadowReach);
    parentWidget()->update(geometry().adjusted(-reach, -reach, reach + 1, reach + 1));
}

void MemoryCardView::paint(QPainter& painter, const QRectF& place)
{
    const bool isOpen = m_card.isFaceUp || m_card.isMatched;
    if (m_card.isMatched && m_removeMatch)
        return;
    if (!isOpen) {
        CardFaces::paintBackSide(painter, place);
        return;
    }
    const QSizeF frame = place.size() - QSizeF(2, 2) * CardFaces::imageInset;
    CardFaces::paintFrontSide(painter, place,
                              scaledPicture(frame, painter.device()->devicePixelRatioF()),
                              m_card.isMatched);
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

const QImage& MemoryCardView::scaledPicture(QSizeF size, qreal devicePixelRatio)
{
    const QSize pixels = (size * devicePixelRatio).toSize();
    const QSize wanted = m_card.image.image.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    if (m_scaled.size() != wanted)
        m_scaled =
            m_card.image.image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return m_scaled;
}
