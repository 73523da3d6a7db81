// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The clock: it counts ticks of one second, not the time of day, so that a tick
// that the system drops is not counted. Nor is one under a question to the user.
#include "game/memory_game.h"
#include "platform/clock_text.h"
#include "platform/platform.h"

void MemoryGame::startTimer()
{
    stopTimer();
    m_timer = std::make_unique<QTimer>();
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer.get(), &QTimer::timeout, this, [this] {
        if (!platform().mainQueue.isHeld())
            m_elapsedSeconds = elapsedSeconds() + 1;
    });
    m_timer->start(tickInterval);
}

void MemoryGame::stopTimer()
{
    m_timer.reset();
}

QString MemoryGame::formattedElapsedTime() const
{
    return clockText(elapsedSeconds());
}
