// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class MemoryGame;

/// The title strip: the game's line while one runs, then its result, as long as
/// the form of that game's mode is shown.
class Header : public QWidget {
    Q_OBJECT

public:
    Header(const MemoryGame& game, QWidget* parent);

    /// Shows the line that the game has for it now.
    void refresh();

private:
    const MemoryGame& m_game;
    ElidedLabel* m_line;
    QString m_text{};
    bool m_wasVersus = false; ///< The last game that ran.
};
