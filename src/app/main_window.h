// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDeadlineTimer>
#include <QMainWindow>
#include <QTimer>
#include <functional>

/// The main window: a menu above the screen, at a size of the game's choosing.
///
/// The user cannot resize it. In full screen it is as large as the screen.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    /// Asked when the user closes the window; false keeps it open.
    std::function<bool()> shouldClose{};

    /// Gives the screen below the menu `size` points, or what the display has
    /// room for, and forbids other sizes. Full screen keeps its size and takes
    /// this one on return.
    void setContentSize(QSize size);

    /// Moves the window to the middle of the display's free area. It moves there by
    /// itself as well when another display, area or menu bar leaves it another size.
    void centre();

    /// Fills the screen, or goes back to the size of setContentSize().
    void toggleFullScreen();

Q_SIGNALS:
    /// The window has come to fill the screen, or does no longer, whoever wanted it.
    void fullScreenChanged(bool isFullScreen);

    /// The window was painted for the first time. What its picture does not show
    /// may be read from now on.
    void appeared();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void applyContentSize();
    /// Sizes and centres the window for the frame that the window manager has laid by now.
    void settle();
    /// Settles as soon as that frame changes, for as long as one may still come.
    void awaitFrame();
    void liftLimits();
    void showBackground();
    /// Watches the free area of the screen that the window is on.
    void watchScreen();
    /// Sizes the window again; centres it if the size is another one.
    void followScreenArea();
    [[nodiscard]] QSize frameSize() const { return frameGeometry().size() - geometry().size(); }

    bool m_hasAppeared = false;
    QSize m_contentSize{};
    QSize m_settledFrame{};
    QTimer m_frameWatch{};
    QDeadlineTimer m_frameDeadline{};
    QMetaObject::Connection m_screenWatch{};
    QTimer m_areaTimer{};
};
