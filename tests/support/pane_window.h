// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/user_folders.h"
#include "settings/preferences/preferences.h"
#include "stage/files.h"
#include "stage/game_window.h"

#include <QComboBox>
#include <QPointer>

inline void writeSettings(const QByteArray& lines)
{
    writeFile(settingsFile(), "[General]\n" + lines);
}

/// What stands under `key` in the file, as another program would find it.
inline QByteArray stored(const QByteArray& key)
{
    for (const QByteArray& line : contentsOf(settingsFile()).split('\n')) {
        if (line.startsWith(key + '='))
            return line.mid(key.size() + 1);
    }
    return "nothing";
}

/// The preferences over the real game, opened from the main window by their shortcut.
class PaneWindow : public GameWindow {
public:
    explicit PaneWindow(
        const QByteArray& settings = {},
        const std::function<void(StagePlatform&)>& prepare = [](StagePlatform&) {})
        : GameWindow([&](StagePlatform& services) {
            prepare(services);
            if (settings.isEmpty())
                return;
            writeSettings(settings);
            services.defaults->reread();
        })
    {
        open();
    }

    void open()
    {
        press(Qt::Key_Comma, Qt::ControlModifier);
        pane = window().findChild<Preferences*>();
        if (pane == nullptr || !QTest::qWaitForWindowActive(pane))
            qFatal("the preferences do not open");
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(pane->windowHandle(), key, modifiers);
    }
    void close()
    {
        key(Qt::Key_Escape);
        QTRY_VERIFY(pane.isNull());
        window().activateWindow(); // which a window manager does
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    QComboBox& decks() { return *pane->cardDeck_dropdown(); }

    QPointer<Preferences> pane{};
};
