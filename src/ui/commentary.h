// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_game.h"

#include <vector>

/// Puts the course of the game into words for those who do not see the board.
///
/// Tells, each once and in the order in which it happens: every picture turned,
/// whether it made a pair, that both cards of a miss are face down again, every
/// text of the line above the board, a dealt board with its rows and columns, the
/// result. It listens to the game and collects; take() hands over what happened
/// since the last call.
class Commentary : public QObject {
    Q_OBJECT

public:
    /// Begins to listen to `game`.
    explicit Commentary(const MemoryGame& game, QObject* parent);

    /// What is to be said of what has happened, as sentences; empty if nothing.
    [[nodiscard]] QString take();

    /// How the game stands: the line above the board, time and failures or the
    /// scores, and how many pairs are left; the result after a game.
    [[nodiscard]] QString status() const;

private:
    enum class Kind { picture, event, dealt, header };
    struct Line {
        Kind kind;
        QString text;
    };

    void note(MemoryGame::Member member);
    void noteCards();
    void noteTurn(const MemoryCard& before, const MemoryCard& now);
    void noteHeader();
    void noteStop();
    void add(Kind kind, const QString& text) { m_lines.push_back({kind, text}); }

    const MemoryGame& m_game;
    MemoryCards m_cards; ///< As they were last heard of.
    std::vector<Line> m_lines{};
    bool m_isStopped = false; ///< A game stopped short since the last take().
};
