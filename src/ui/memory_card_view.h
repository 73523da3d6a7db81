// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_card.h"

#include <QAbstractButton>
#include <QImage>

class QPainter;

/// One card on the board: a real button for pointer, focus and screen reader.
///
/// It paints nothing by itself, since shadow and focus ring lie outside it: the
/// board calls paint() with the exact place.
class MemoryCardView : public QAbstractButton {
    Q_OBJECT

public:
    MemoryCardView(const MemoryCard& card, QWidget* parent);

    [[nodiscard]] const MemoryCard& card() const { return m_card; }

    /// Takes over the card's state. `name` is what a screen reader says.
    void show(const MemoryCard& card, bool removeMatch, const QString& name);

    /// Paints the card's face, or nothing if it has left the board.
    void paint(QPainter& painter, const QRectF& place);

Q_SIGNALS:
    /// An arrow key, Home or End was pressed.
    void navigated(int key, Qt::KeyboardModifiers modifiers);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] const QImage& scaledPicture(QSizeF size, qreal devicePixelRatio);

    MemoryCard m_card;
    bool m_removeMatch = false;
    QImage m_scaled{}; ///< The picture as large as it was last painted.
};
