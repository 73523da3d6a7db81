// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/app_delegate.h"

#include "app/main_window.h"
#include "app/menus.h"
#include "game/game_status.h"
#include "game/rules/card_layout.h"
#include "platform/main_queue.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "settings/default_settings.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"
#include "ui/content_view.h"
#include "ui/focus_ring.h"

#include <QApplication>

namespace {

QSize sizeForCurrentLayout()
{
    const CardLayout& layout = windowLayout(platform().defaults.integer(SettingsKeys::AmountCards));
    return {layout.windowWidth, layout.windowHeight};
}

} // namespace

AppDelegate::AppDelegate() = default;
AppDelegate::~AppDelegate() = default;

void AppDelegate::createDefaultSettings()
{
    ::createDefaultSettings(platform().defaults);
}

void AppDelegate::applicationDidFinishLaunching()
{
    createDefaultSettings();
    m_contentView = new ContentView(std::make_unique<MemoryGame>());

    m_focusRing = std::make_unique<FocusRing>();
    auto window = std::make_unique<MainWindow>();
    window->setCentralWidget(m_contentView);
    const auto* const menus = new Menus(*window, m_contentView->game());
    connect(menus, &Menus::preferencesChosen, this, &AppDelegate::showPreferences);
    connect(menus, &Menus::statusChosen, m_contentView, &ContentView::tellStatus);
    window->setContentSize(sizeForCurrentLayout());
    window->centre();
    window->shouldClose = [this] { return windowShouldClose(); };
    window->show();
    window->activateWindow();

    if (platform().defaults.integer(SettingsKeys::LaunchInFullscreen) == 1)
        platform().mainQueue.async([shown = window.get()] { shown->toggleFullScreen(); });
    m_window = std::move(window);
}

void AppDelegate::updateWindowSizeForCurrentLayout()
{
    if (!m_window)
        return;
    m_window->setContentSize(sizeForCurrentLayout());
    if (m_window->isFullScreen())
        m_contentView->layOut();
    else
        m_window->centre();
    platform().notifications.post(gameLayoutChanged);
}

MemoryGame* AppDelegate::shownGame()
{
    return m_window ? &m_contentView->game() : nullptr;
}

void AppDelegate::showPreferences()
{
    if (!m_preferences) {
        // Closed, it would go on writing back what it once showed.
        m_preferences = new Preferences(this, m_window.get());
        m_preferences->setAttribute(Qt::WA_DeleteOnClose);
    } else if (m_preferences->isVisible() && !m_preferences->isMinimized()) {
        m_preferences->viewDidAppear(); // minimised windows do so by themselves
    }
    m_preferences->setWindowState(m_preferences->windowState() & ~Qt::WindowMinimized);
    m_preferences->show();
    m_preferences->raise();
    m_preferences->activateWindow();
}

bool AppDelegate::windowShouldClose()
{
    publishGameStatus(false);
    QCoreApplication::exit(0);
    return true;
}

void AppDelegate::applicationWillTerminate()
{
    platform().defaults.setInteger(SettingsKeys::GameIsActive, 0);
}

void AppDelegate::activate()
{
    QWidget* const dialog = QApplication::activeModalWidget();
    QWidget* const front = dialog != nullptr ? dialog : m_window.get();
    if (front == nullptr)
        return;
    for (QWidget* const shown : {static_cast<QWidget*>(m_window.get()), front}) {
        shown->setWindowState(shown->windowState() & ~Qt::WindowMinimized);
        shown->show();
        shown->raise();
    }
    front->activateWindow();
}
