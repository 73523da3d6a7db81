// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/frame_clock.h"
#include "ui/turning_card.h"

#include <QWidget>
#include <optional>
#include <vector>

/// A won board on its way out: its last card turns, then it fades over what has
/// replaced it. A press on it ends it, and so does Return, Space or Escape unless
/// the focus is beside it; the covered controls do not receive that input. All other
/// keys reach them. Deletes itself.
class LeavingBoard : public QWidget {
    Q_OBJECT

public:
    /// A card of the won board, and where it lies.
    struct Card {
        TurningCard face;
        QRectF place{};                      ///< In this widget's points.
        std::optional<double> removalTime{}; ///< When its pair is removed, by frameTime().
    };

    /// Begins at once.
    LeavingBoard(std::vector<Card> cards, QWidget* parent);

Q_SIGNALS:
    /// The last card lies still, and the board begins to fade or is gone.
    void turned();
    /// A press or a key ended it.
    void dismissed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void followTime();
    void removePairs();
    [[nodiscard]] bool isDismissedBy(const QKeyEvent& key) const;
    void dismiss();
    void end();

    std::vector<Card> m_cards;
    FrameTimer m_frames;
    double m_begin;
    bool m_hasTurned = false;
};
