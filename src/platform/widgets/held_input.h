// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QEvent;

/// Whether a key was pressed. One that may be a shortcut is asked about first, and
/// comes as a key only if nobody takes it.
[[nodiscard]] bool isKeyPress(const QEvent& event);

/// Whether a mouse button was pressed, also as the second half of a double click.
[[nodiscard]] bool isMousePress(const QEvent& event);

/// Whether a key is held down, or a press is the second of a double click. The
/// window is told of such a press twice, as a press and as a double click. `event`
/// is a press of a key or of a mouse button.
[[nodiscard]] bool isRepeat(const QEvent& event);

/// Keeps what is still held when a dialog comes up from acting on it: while this
/// lives, no repeated press reaches the program before a fresh one.
class HeldInput : public QObject {
    Q_OBJECT

public:
    HeldInput();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_isHeld = true;
};
