// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_game.h"
#include "ui/screen_metrics.h"

#include <QWidget>
#include <memory>

class Announcer;
class Commentary;
class GameBoard;
class Header;
class Invitation;
class LeftSidebar;
class LogoView;
class QScrollArea;
class SinglePlayerStartView;
class VersusStartView;

/// The single screen of the main window: title strip, sidebar and, beside it,
/// the board of the running game or the form that starts one.
///
/// Shows what the game holds. However much of it changes in a turn of the event
/// loop, the screen follows once, after it, or before the next key; while the main
/// queue is held, not before that ends.
class ContentView : public QWidget {
    Q_OBJECT

public:
    static constexpr int spacing = ScreenMetrics::spacing;
    static constexpr int headerHeight = ScreenMetrics::headerHeight;
    static constexpr int footerHeight = ScreenMetrics::footerHeight;
    static constexpr int leftPanelWidth = ScreenMetrics::leftPanelWidth;

    explicit ContentView(std::unique_ptr<MemoryGame> game, QWidget* parent = nullptr);
    ~ContentView() override;

    [[nodiscard]] MemoryGame& game() { return *m_game; }

    /// The edge of a card in a view of `windowSize` for the current layout.
    [[nodiscard]] double calculateCardSize(QSizeF windowSize) const;

    /// Takes over the contrast and the motion that the desktop asks for.
    void followAppearance();

    /// Has a screen reader tell how the game stands.
    void tellStatus();

    /// Lays the screen out for its size and the current layout.
    void layOut();

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void noteChange(MemoryGame::Member member);
    void scheduleRefresh();
    void refreshIfScheduled();
    void refresh();
    void arrangeBoard();
    /// Returns what the main area shows: the board, or the form of the mode.
    [[nodiscard]] QWidget* mainContent() const;
    void showMainContent();
    void showLeavingBoard();
    void celebrate();
    void inviteAgain();
    void giveFocus();
    [[nodiscard]] QRect mainArea() const;

    std::unique_ptr<MemoryGame> m_game;
    Header* m_header;
    LeftSidebar* m_leftSidebar;
    Invitation* m_invitation;
    SinglePlayerStartView* m_singlePlayerStartView;
    VersusStartView* m_versusStartView;
    QScrollArea* m_boardArea;
    GameBoard* m_gameBoard;
    QWidget* m_divider;
    LogoView* m_logo;
    Commentary* m_commentary;
    Announcer* m_announcer;

    MemoryCards m_wonBoard{}; ///< As it stood when its last pair was found.
    bool m_isRefreshScheduled = false;
    bool m_showsBoard = false;
    bool m_showsVersusForm = false;
    bool m_needsFocus = true;      ///< Another view comes, or a start came to nothing.
    bool m_ignoresRepeats = false; ///< A key that ended one view is still held.
    /// The key that changed the mode is; its check box may well be clicked twice.
    bool m_ignoresKeyRepeats = false;
};
