// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class MemoryGame;
class QLineEdit;
class QPushButton;

/// The form that starts a one-player game.
class SinglePlayerStartView : public QWidget {
    Q_OBJECT

public:
    SinglePlayerStartView(MemoryGame& game, QWidget* parent);

    /// Shows the game's name, and whether it suffices.
    void refresh();
    /// Gives the focus to the field.
    void focusField();
    /// Where its topmost control begins, in this widget's points.
    [[nodiscard]] int controlsTop() const;

private:
    MemoryGame& m_game;
    QLineEdit* m_playerName;
    QPushButton* m_startButton;
};

/// The form that starts a versus game.
class VersusStartView : public QWidget {
    Q_OBJECT

public:
    VersusStartView(MemoryGame& game, QWidget* parent);

    /// Shows the game's names, and whether they suffice.
    void refresh();
    /// Gives the focus to the first empty field, to the first if none is empty.
    void focusField();
    /// Where its topmost control begins, in this widget's points.
    [[nodiscard]] int controlsTop() const;

private:
    MemoryGame& m_game;
    QLineEdit* m_playerOneName;
    QLineEdit* m_playerTwoName;
    QPushButton* m_startButton;
};
