// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>

class QTimer;

/// Deferred work of the main thread: first in, first out, one task at a time.
///
/// Never re-entered: while a task sits in a modal alert, later tasks wait, so
/// that two alerts show one after the other. A delayed task joins the queue
/// when it falls due.
///
/// It can be held, which is the state in which the main thread would stand still
/// were it not for a question to the user: see Hold.
class MainQueue : public QObject {
    Q_OBJECT

public:
    using Task = std::function<void()>;
    using Ticket = std::uint64_t;

    /// Keeps every task from beginning for as long as it lives; so does whoever
    /// asks isHeld() with work of its own. Holds may overlap.
    class Hold {
    public:
        explicit Hold(MainQueue& queue);
        ~Hold();
        Q_DISABLE_COPY_MOVE(Hold)

    private:
        MainQueue& m_queue;
    };

    /// Runs `task` once, after the current turn of the main thread's event loop.
    /// May be called on any thread; everything else on the main thread only.
    void async(Task task);

    /// Runs `task` once, `delay` from now at the earliest. The ticket withdraws it.
    Ticket asyncAfter(std::chrono::milliseconds delay, Task task);

    /// Drops a task that has not begun yet; any other ticket does nothing.
    void withdraw(Ticket ticket);

    [[nodiscard]] bool isHeld() const { return m_holds > 0; }

Q_SIGNALS:
    /// The first hold has begun, or the last has ended.
    void heldChanged(bool isHeld);

private:
    struct Entry {
        Ticket ticket = 0;
        Task task{};
    };

    void enqueue(Entry entry);
    void runNext();
    void scheduleRun();

    std::deque<Entry> m_entries{};
    std::deque<std::pair<Ticket, QTimer*>> m_delayed{};
    Ticket m_lastTicket = 0;
    bool m_isRunning = false;
    int m_holds = 0;
};
