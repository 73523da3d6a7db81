// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_window.h"

#include "platform/localized_text.h"
#include "platform/widgets/native_background.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <chrono>
#include <utility>

namespace {

// The window manager lays its frame around the window some time after the window
// is shown, and says nothing of it.
constexpr std::chrono::milliseconds frameWatchInterval{10};
constexpr std::chrono::milliseconds frameWatchTime{600};

// A window that is dragged to another screen keeps its size until it rests: resized at
// once, it would slip from the player's hand.
constexpr std::chrono::milliseconds areaDelay{300};

} // namespace

MainWindow::MainWindow()
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QString());
    setAccessibleName(localizedText("window_accessible_name"));
    m_frameWatch.setInterval(frameWatchInterval);
    connect(&m_frameWatch, &QTimer::timeout, this, [this] {
        if (frameSize() != m_settledFrame)
            settle();
        if (m_frameDeadline.hasExpired())
            m_frameWatch.stop();
    });
    m_areaTimer.setSingleShot(true);
    m_areaTimer.setInterval(areaDelay);
    connect(&m_areaTimer, &QTimer::timeout, this, &MainWindow::followScreenArea);
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
    const QSize room = screen()->availableGeometry().size() - frameSize();
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
    m_settledFrame = frameSize();
    applyContentSize();
    centre();
}

void MainWindow::awaitFrame()
{
    m_settledFrame = QSize(-1, -1);
    m_frameDeadline.setRemainingTime(frameWatchTime);
    m_frameWatch.start();
}

void MainWindow::watchScreen()
{
    disconnect(m_screenWatch);
    const auto startTimer = qOverload<>(&QTimer::start);
    m_screenWatch = connect(screen(), &QScreen::availableGeometryChanged, &m_areaTimer, startTimer);
    m_areaTimer.start();
}

void MainWindow::followScreenArea()
{
    if (isFullScreen())
        return;
    const QSize before = size();
    applyContentSize();
    if (size() != before)
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
    // With 0 the layout's own minimum would hold, which may exceed the screen.
    setMinimumSize(1, 1);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showBackground();
    if (event->type() != QEvent::WindowStateChange)
        return;
    const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
    const bool wasFullScreen = before.testFlag(Qt::WindowFullScreen);
    if (isFullScreen())
        liftLimits();
    else if (wasFullScreen)
        awaitFrame();
    if (wasFullScreen != isFullScreen())
        Q_EMIT fullScreenChanged(isFullScreen());
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    // Once all that lies on the window was painted as well.
    if (!std::exchange(m_hasAppeared, true))
        QTimer::singleShot(0, this, &MainWindow::appeared);
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous())
        return;
    showBackground();
    awaitFrame();
    connect(windowHandle(), &QWindow::screenChanged, this, &MainWindow::watchScreen,
            Qt::UniqueConnection);
    watchScreen();
}

void MainWindow::showBackground()
{
    // A window that grows would show the window manager's own white until it is painted.
    if (windowHandle() != nullptr)
        setNativeBackground(*windowHandle(), palette().color(QPalette::Window));
}

bool MainWindow::event(QEvent* event)
{
    const bool isHandled = QMainWindow::event(event);
    // The menu bar may have become higher or lower, by another font or desktop.
    if (event->type() == QEvent::LayoutRequest)
        followScreenArea();
    return isHandled;
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    if (m_areaTimer.isActive())
        m_areaTimer.start();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!shouldClose || shouldClose());
}
