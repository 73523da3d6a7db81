// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_card.h"
#include "ui/frame_clock.h"
#include "ui/leaving_board.h"

#include <QRegion>
#include <QWidget>
#include <cstddef>
#include <optional>
#include <vector>

class MemoryCardView;
class MemoryGame;
class QPainter;

/// The grid of cards. Owns one tile per card and keeps it as long as the card
/// lies on the board; paints all of them, and the focus ring. To Tab the board is
/// one control, entered at the card that had the focus last: behind forty stops the
/// button that ends the game would be out of reach. Arrow keys go from card to card.
class GameBoard : public QWidget {
    Q_OBJECT

public:
    explicit GameBoard(MemoryGame& game, QWidget* parent);

    /// Brings the tiles up to date with the game. The focus stays at its place
    /// when another board is dealt.
    void refresh();

    /// Lays the tiles out in `columns` with cards of `cardSize` points.
    void setGrid(int columns, double cardSize);

    /// Leaves the uppermost `points` to what lies there, but for a turning card,
    /// which may reach into them.
    void setTopRoom(int points);

    /// Gives the focus to the card at `position`, the last one if beyond it.
    void focusCard(std::size_t position);

    /// Whether the focused card wears its ring: after a key, not after a press.
    void setFocusRingShown(bool isShown);

    /// Shows `cards`, a board that has been won, and returns them for its picture;
    /// places count from this widget.
    [[nodiscard]] std::vector<LeavingBoard::Card> leavingCards(const MemoryCards& cards);

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A card got the focus by a key or by the game, and should be seen.
    void focusMoved(QWidget* tile);
    /// A found pair was seen long enough. The next refresh() removes it.
    void removalDue();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void moveTabStop(std::size_t position);
    void showCards(const MemoryCards& cards);
    [[nodiscard]] bool isMatchedForView(std::size_t position, const MemoryCard& card,
                                        bool removeMatch);
    void replaceTiles(const MemoryCards& cards);
    void nextFrame();
    void followFrame();
    void arrange();
    void paintFocusRing(QPainter& painter) const;
    [[nodiscard]] QSizeF gridSize() const;
    [[nodiscard]] QRectF place(const MemoryCardView& tile) const;
    void navigate(std::size_t from, int key, Qt::KeyboardModifiers modifiers);

    MemoryGame& m_game;
    std::vector<MemoryCardView*> m_tiles{};
    /// When the tile at the same position learns that its pair was found, by
    /// frameTime(); none if it knows all.
    std::vector<std::optional<double>> m_removalTimes{};
    int m_columns = 1;
    double m_cardSize = 0;
    int m_topRoom = 0;
    std::size_t m_focusedPosition = 0;
    bool m_isFocusRingShown = false;
    FrameTimer m_frames;
    QRegion m_moved{}; ///< Where moving cards were painted last.
};
