// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/turning_card.h"

#include <QAbstractButton>
#include <cstddef>

/// One card on the board: a real button for pointer, focus and screen reader.
///
/// It paints nothing by itself, since shadow, turn and focus ring reach beyond
/// it: the board has face() painted.
class MemoryCardView : public QAbstractButton {
    Q_OBJECT

public:
    /// `index` is the card's position on the board.
    MemoryCardView(const MemoryCard& card, std::size_t index, QWidget* parent);

    [[nodiscard]] const MemoryCard& card() const { return m_face.card(); }
    [[nodiscard]] std::size_t index() const { return m_index; }
    [[nodiscard]] TurningCard& face() { return m_face; }

    /// Takes over the card's state. `name` is what a screen reader says; a card
    /// that `canBeTurned` answers to the pointer.
    void show(const MemoryCard& card, bool removeMatch, bool canBeTurned, const QString& name);

Q_SIGNALS:
    /// An arrow key, Home or End was pressed.
    void navigated(int key, Qt::KeyboardModifiers modifiers);
    /// The face looks different from now on, or begins to.
    void faceChanged();

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void rename(const QString& name);
    void tellName();
    void followPointer();

    TurningCard m_face;
    std::size_t m_index;
    bool m_canBeTurned = true;
    bool m_owesName = false; ///< Readers were not told of its name yet.
};
