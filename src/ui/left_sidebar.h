// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/highscore_section.h"

#include <QScrollArea>
#include <vector>

class ElidedLabel;
class MemoryGame;
class QCheckBox;
class QPushButton;

/// The column beside the board: players and scores, highscores, actions.
///
/// Where it is higher than its room, the highscores first move closer together,
/// then scroll by themselves; in a very low window the whole column scrolls.
class LeftSidebar : public QScrollArea {
    Q_OBJECT

public:
    LeftSidebar(MemoryGame& game, QWidget* parent);

    /// Shows what the game holds, and lays the column out for it.
    void refresh();
    /// Takes over the colours that the desktop asks for.
    void followAppearance();
    /// Points that the whole column is scrolled by.
    [[nodiscard]] int scrolledBy() const;

Q_SIGNALS:
    /// The whole column was scrolled by `points` in all.
    void scrolled(int points);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// A place in the column; a hidden widget takes no room.
    struct Row {
        QWidget* widget = nullptr;
        int width = 0;
        int above = 0; ///< In addition to the column's gap.
        int below = 0;
    };
    using Rows = std::vector<Row>;

    [[nodiscard]] ElidedLabel* addLine(const char* name, int width, const QFont& font);
    [[nodiscard]] QPushButton* addButton(const char* key, const char* name, int above);
    void addVersusCheckbox();
    void alignButtons();
    void showMode();
    void refreshSidebarHeader();
    void refreshSidebarActions();
    [[nodiscard]] static Rows shown(const Rows& rows);
    void arrange();
    void arrangeHighscores(const Rows& highscores, int height, int visibleHeight);

    MemoryGame& m_game;
    QWidget* m_column;
    QScrollArea* m_highscoreArea;
    QWidget* m_highscoreColumn;
    Rows m_sidebarHeader{}; ///< Below the logo.
    Rows m_highscoreRows{}; ///< Their gaps may shrink.
    Rows m_sidebarActions{};
    ElidedLabel* m_pairingLine;
    ElidedLabel* m_firstScoreLine;
    ElidedLabel* m_secondScoreLine;
    ElidedLabel* m_nameLine;
    ElidedLabel* m_timeLine;
    ElidedLabel* m_failuresLine;
    HighscoreSection m_highscoreSection;
    QPushButton* m_resetButton = nullptr;
    QCheckBox* m_versusCheckbox = nullptr;
    QPushButton* m_endButton = nullptr;
};
