// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// Has texts said by a screen reader, wherever the focus is. Nothing is seen.
///
/// From Qt 6.8 on a text is an announcement. Before, it is a notification that
/// appears within a status bar, and is gone after a few seconds: each text has an
/// object of its own, so that a reader that is behind still finds the right one.
/// It is the form that Orca speaks without naming its kind, shows in braille and
/// keeps in its list of notifications. Nothing here interrupts what is being said:
/// readers fall silent at the next key by themselves.
class Announcer : public QWidget {
    Q_OBJECT

public:
    /// Speaks for the window of `parent`.
    explicit Announcer(QWidget* parent);

    /// Has `text` said after what was said before. An empty text says nothing;
    /// where no screen reader listens, nothing happens.
    void say(const QString& text);
};
