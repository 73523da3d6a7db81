// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/frame_clock.h"
#include "ui/turning_card.h"

#include <QWidget>
#include <deque>
#include <vector>

class MemoryGame;

/// The fan of five cards above a start form. Its middle card finds its pair
/// once the form could start a game. A picture only: no input, no focus.
///
/// It lies in no layout, so that it never moves the form.
class Invitation : public QWidget {
    Q_OBJECT

public:
    Invitation(const MemoryGame& game, QWidget* parent);

    /// Takes its place between the strip and a form whose topmost control
    /// begins at `formTop`, in the parent's points; `area` is the main area.
    /// Without room it shows nothing.
    void arrange(const QRect& area, int formTop);

    /// Follows the game: answers, or lets go.
    void refresh();

    /// The form comes back after a game, or for the other mode: the fan stands
    /// ready without motion.
    void standReady();

    /// Lays backs only: a game begins, and no pictures are needed for a while.
    void dropPictures();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void arrive();
    void scheduleLoad();
    void loadNextPicture();
    void layPictures();
    void followFrame();
    [[nodiscard]] bool hasPictures() const { return m_pictures.size() == 4; }

    const MemoryGame& m_game;
    FrameTimer m_frames;
    QString m_deck{};
    std::deque<QString> m_namesToLoad{};
    std::vector<CardPicture> m_pictures{};
    std::vector<TurningCard> m_cards{}; ///< From left to right.
    bool m_isLoadScheduled = false;
    bool m_isPainted = false;
    bool m_comesByTurning = true; ///< The pictures, once they are there.
    double m_edge = 0;            ///< 0 where there is no room.
    double m_middleY = 0;         ///< The middle card's centre, in this widget's points.
};
