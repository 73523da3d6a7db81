// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class MemoryGame;

/// The title strip: the game's line while one runs, then its result.
class Header : public QWidget {
    Q_OBJECT

public:
    Header(const MemoryGame& game, QWidget* parent);

    void refresh();

private:
    const MemoryGame& m_game;
    ElidedLabel* m_line;
};
