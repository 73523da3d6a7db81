// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class MainWindow;
class MemoryGame;
class QAction;
class QActionGroup;
class QMenu;

/// The menu bar of the main window. Nothing can be chosen while the main queue is
/// held, not even by a screen reader.
class Menus : public QObject {
    Q_OBJECT

public:
    /// Fills the menu bar of `window`, which owns this, with what `game` can do.
    Menus(MainWindow& window, MemoryGame& game);

Q_SIGNALS:
    /// The preferences were chosen from the menu.
    void preferencesChosen();
    /// The player asks how the game stands.
    void statusChosen();

private:
    void addGameMenu();
    void addViewMenu();
    void addHelpMenu();
    [[nodiscard]] QMenu* addMenu(const char* key);
    QAction* addItem(QMenu* menu, const char* key, const std::function<void()>& action);
    void scheduleRefresh();
    void refresh();

    MainWindow& m_window;
    MemoryGame& m_game;
    QActionGroup* m_items;
    QAction* m_newGame = nullptr;
    QAction* m_endGame = nullptr;
    QAction* m_restoreHighscores = nullptr;
    bool m_isRefreshScheduled = false;
};
