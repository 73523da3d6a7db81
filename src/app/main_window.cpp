// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_window.h"

#include "platform/localized_text.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>

MainWindow::MainWindow()
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QString());
    setAccessibleName(localizedText("window_accessible_name"));
}

void MainWindow::setContentSize(QSize size)
{
    m_contentSize = size;
    if (!isFullScreen())
        applyContentSize();
}

void MainWindow::applyContentSize()
{
    // A menu bar that the desktop shows elsewhere takes no room here.
    const QMenuBar* const bar = menuBar();
    const int menuHeight = bar->isNativeMenuBar() ? 0 : bar->sizeHint().height();
    const QSize frame = frameGeometry().size() - geometry().size();
    const QSize room = screen()->availableGeometry().size() - frame;
    setFixedSize((m_contentSize + QSize(0, menuHeight)).boundedTo(room));
}

void MainWindow::centre()
{
    if (isFullScreen())
        return;
    QRect frame = frameGeometry();
    frame.moveCenter(screen()->availableGeometry().center());
    move(frame.topLeft());
}

void MainWindow::settle()
{
    if (isFullScreen())
        return;
    applyContentSize();
    centre();
}

void MainWindow::toggleFullScreen()
{
    if (isFullScreen()) {
        showNormal();
        return;
    }
    // Window managers refuse to enlarge a window of a fixed size.
    liftLimits();
    showFullScreen();
}

void MainWindow::liftLimits()
{
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
    const bool wasFullScreen = before.testFlag(Qt::WindowFullScreen);
    if (isFullScreen())
        liftLimits();
    else if (wasFullScreen)
        // The frame comes back a little later than the state.
        QTimer::singleShot(1, this, &MainWindow::settle);
    if (wasFullScreen != isFullScreen())
        Q_EMIT fullScreenChanged(isFullScreen());
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // Only now does the window have a frame, which counts for size and centre.
    if (!event->spontaneous())
        QTimer::singleShot(1, this, &MainWindow::settle);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!shouldClose || shouldClose());
}
