// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class MemoryGame;

/// What the preferences reach of the main window.
class MainWindowLink {
public:
    virtual ~MainWindowLink() = default;

    /// Lets the main window follow the settings' card layout.
    virtual void updateWindowSizeForCurrentLayout() = 0;

    /// The game that the main window shows; null while it shows none.
    [[nodiscard]] virtual MemoryGame* shownGame() = 0;
};
