// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_game.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

/// Catches the game's clock at its next tick and has it tick `seconds` more.
class ClockHand : public QObject {
public:
    explicit ClockHand(int seconds)
        : m_seconds(seconds)
    {
        QCoreApplication::instance()->installEventFilter(this);
        if (!QTest::qWaitFor([this] { return m_seconds == 0; }, 3000))
            qFatal("the clock does not tick");
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const timer = qobject_cast<QTimer*>(watched);
        if (event->type() != QEvent::Timer || timer == nullptr ||
            timer->intervalAsDuration() != MemoryGame::tickInterval)
            return false;
        QCoreApplication::instance()->removeEventFilter(this);
        QTimerEvent tick(static_cast<QTimerEvent*>(event)->timerId());
        for (; m_seconds > 0; --m_seconds)
            QCoreApplication::sendEvent(watched, &tick);
        return false;
    }

private:
    int m_seconds;
};

/// The first hidden card at or after the position `from`.
inline std::size_t hiddenFrom(const MemoryGame& game, std::size_t from)
{
    const MemoryCards& cards = game.cards();
    std::size_t position = from % cards.size();
    while (cards[position].isFaceUp || cards[position].isMatched)
        position = (position + 1) % cards.size();
    return position;
}
