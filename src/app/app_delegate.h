// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/preferences/main_window_link.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>

class ContentView;
class FocusRing;
class MainWindow;
class Preferences;

/// Posted after the main window followed a change of the card layout.
inline const QString gameLayoutChanged = QStringLiteral("gameLayoutChanged");

/// Starts the game, owns its main window and marks on every way out that no
/// game runs.
class AppDelegate : public QObject, public MainWindowLink {
    Q_OBJECT

public:
    AppDelegate();
    ~AppDelegate() override;

    /// Stores missing settings, makes the one game and shows its window, in full
    /// screen if the settings say so. Called once, at launch.
    void applicationDidFinishLaunching();

    /// Stores the default of every setting that is missing; the first step of the launch.
    static void createDefaultSettings();

    /// Gives the window the size of the current layout and centres it; in full
    /// screen only the board follows. Without a window nothing happens.
    void updateWindowSizeForCurrentLayout() override;

    /// Opens the preferences; if they are open, brings them to the front with the albums
    /// that there are now.
    void showPreferences();

    /// Marks that no game runs. Closing the window announces it as well.
    void applicationWillTerminate();

    /// Brings the window, or the dialog above it, to the front.
    void activate();

    /// The main window; null before launch.
    [[nodiscard]] MainWindow* window() const { return m_window.get(); }
    [[nodiscard]] ContentView* contentView() const { return m_contentView; }
    /// The game in the main window; null before launch.
    [[nodiscard]] MemoryGame* shownGame() override;

private:
    [[nodiscard]] bool windowShouldClose();

    std::unique_ptr<MainWindow> m_window{};
    std::unique_ptr<FocusRing> m_focusRing{};
    ContentView* m_contentView = nullptr;  ///< Owned by the window.
    QPointer<Preferences> m_preferences{}; ///< Owned by the window while they are open.
};
