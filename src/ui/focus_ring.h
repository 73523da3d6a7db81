// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFocusFrame>
#include <QPointer>

/// Rings the control that has the focus, in every window of the game.
///
/// The style's own mark can be too faint: Fusion's stays below 3:1 in light windows,
/// and a default button looks the same with and without the focus. The ring lies
/// outside the control, on the window, after a key was pressed and until the next
/// press of the mouse. The board rings its cards itself. There is one for the life of
/// the window.
class FocusRing : public QObject {
    Q_OBJECT

public:
    FocusRing();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();

    QPointer<QFocusFrame> m_frame{}; ///< Child of the window with the focus.
    bool m_isShown = false;
};
