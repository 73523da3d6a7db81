// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class QWidget;

/// The time by which everything moves, in seconds from an arbitrary start.
[[nodiscard]] double frameTime();

/// Lets `source` tell the time instead of the system's clock, to look at one
/// moment of a motion; an empty one gives the clock back.
void setFrameTimeSource(std::function<double()> source);

/// Calls for frames at the pace of the display while something moves, and is
/// silent otherwise.
class FrameTimer : public QObject {
    Q_OBJECT

public:
    /// At the pace of the screen that `shownIn` lies on.
    explicit FrameTimer(QWidget* shownIn);

    /// Frames come until stop(). Started again, it goes on.
    void start();
    void stop() { m_timer.stop(); }
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }

Q_SIGNALS:
    /// Something that moves has to be painted anew.
    void frame();

private:
    QTimer m_timer{};
    QWidget* m_widget;
};
