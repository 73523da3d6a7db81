// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/menus.h"

#include "app/main_window.h"
#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/main_queue.h"
#include "platform/platform.h"
#include "platform/widgets/alert_box.h"
#include "platform/widgets/control_text.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <utility>

Menus::Menus(MainWindow& window, MemoryGame& game)
    : QObject(&window)
    , m_window(window)
    , m_game(game)
    , m_items(new QActionGroup(this))
{
    m_items->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    connect(&platform().mainQueue, &MainQueue::heldChanged, m_items, &QActionGroup::setDisabled);
    addGameMenu();
    addViewMenu();
    addHelpMenu();
    connect(&m_game, &MemoryGame::changed, this, &Menus::scheduleRefresh);
    refresh();
}

void Menus::addGameMenu()
{
    QMenu* const gameMenu = addMenu("menu_game");
    m_newGame = addItem(gameMenu, "menu_new_game", [this] {
        // The choice may come before the item is disabled.
        if (!m_game.isGameActive())
            m_game.startNewGame();
    });
    m_newGame->setShortcut(QKeySequence::New);
    m_endGame = addItem(gameMenu, "menu_end_game", [this] {
        if (m_game.isGameActive())
            m_game.endGame();
    });
    gameMenu->addSeparator();
    addItem(gameMenu, "menu_open_highscores_html", [this] { m_game.openHighscoresHTML(); });
    m_restoreHighscores =
        addItem(gameMenu, "menu_restore_highscores", [this] { m_game.restoreHighscores(); });
    gameMenu->addSeparator();
    QAction* const preferences =
        addItem(gameMenu, "menu_preferences", [this] { Q_EMIT preferencesChosen(); });
    preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    preferences->setMenuRole(QAction::PreferencesRole);
    gameMenu->addSeparator();
    // exit() and not quit(), which would close the window and so be announced.
    QAction* const quit = addItem(gameMenu, "menu_quit", [] { QCoreApplication::exit(0); });
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    // Also from the preferences.
    quit->setShortcutContext(Qt::ApplicationShortcut);
    quit->setMenuRole(QAction::QuitRole);
}

void Menus::addViewMenu()
{
    QMenu* const viewMenu = addMenu("menu_view");
    QAction* const fullScreen =
        addItem(viewMenu, "menu_full_screen", [this] { m_window.toggleFullScreen(); });
    fullScreen->setShortcut(QKeySequence(Qt::Key_F11));
    fullScreen->setCheckable(true);
    fullScreen->setAutoRepeat(false);
    connect(&m_window, &MainWindow::fullScreenChanged, fullScreen, &QAction::setChecked);
}

void Menus::addHelpMenu()
{
    QMenu* const helpMenu = addMenu("menu_help");
    QAction* const status = addItem(helpMenu, "menu_status", [this] { Q_EMIT statusChosen(); });
    status->setShortcut(QKeySequence(Qt::Key_F1));
    status->setAutoRepeat(false);
    addItem(helpMenu, "menu_keyboard", [] {
        showInformation(localizedText("menu_keyboard"), localizedText("keyboard_help"));
    });
    QAction* const about = addItem(helpMenu, "menu_about", [] {
        showInformation(localizedText("menu_about"),
                        localizedText("about_text", {QStringLiteral(PAIRCADE_VERSION)}));
    });
    about->setMenuRole(QAction::AboutRole);
}

QMenu* Menus::addMenu(const char* key)
{
    QMenu* const menu = m_window.menuBar()->addMenu(controlText(key));
    menu->setObjectName(QString::fromLatin1(key));
    return menu;
}

QAction* Menus::addItem(QMenu* menu, const char* key, const std::function<void()>& action)
{
    QAction* const item = m_items->addAction(menu->addAction(controlText(key)));
    item->setObjectName(QString::fromLatin1(key));
    connect(item, &QAction::triggered, this, action);
    return item;
}

void Menus::scheduleRefresh()
{
    if (std::exchange(m_isRefreshScheduled, true))
        return;
    QMetaObject::invokeMethod(this, &Menus::refresh, Qt::QueuedConnection);
}

void Menus::refresh()
{
    m_isRefreshScheduled = false;
    m_newGame->setEnabled(!m_game.isGameActive() && m_game.canStart());
    m_endGame->setEnabled(m_game.isGameActive());
    m_restoreHighscores->setEnabled(m_game.canRestoreHighscores());
}
