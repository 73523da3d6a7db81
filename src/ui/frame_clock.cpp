// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame_clock.h"

#include <QElapsedTimer>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace {

std::function<double()>& timeSource()
{
    static std::function<double()> source;
    return source;
}

} // namespace

double frameTime()
{
    static const QElapsedTimer clock = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    if (timeSource())
        return timeSource()();
    return static_cast<double>(clock.nsecsElapsed()) * 1e-9;
}

void setFrameTimeSource(std::function<double()> source)
{
    timeSource() = std::move(source);
}

FrameTimer::FrameTimer(QWidget* shownIn)
    : QObject(shownIn)
    , m_widget(shownIn)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &FrameTimer::frame);
}

void FrameTimer::start()
{
    if (m_timer.isActive())
        return;
    const double rate = std::clamp(m_widget->screen()->refreshRate(), 30.0, 240.0);
    m_timer.start(static_cast<int>(1000 / rate));
}
