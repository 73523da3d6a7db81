// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/main_queue.h"

#include <QThread>
#include <QTimer>
#include <algorithm>
#include <utility>

MainQueue::Hold::Hold(MainQueue& queue)
    : m_queue(queue)
{
    if (++m_queue.m_holds == 1)
        Q_EMIT m_queue.heldChanged(true);
}

MainQueue::Hold::~Hold()
{
    if (--m_queue.m_holds > 0)
        return;
    m_queue.scheduleRun();
    Q_EMIT m_queue.heldChanged(false);
}

void MainQueue::async(Task task)
{
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(
            this, [this, task = std::move(task)]() mutable { async(std::move(task)); },
            Qt::QueuedConnection);
        return;
    }
    enqueue({++m_lastTicket, std::move(task)});
}

MainQueue::Ticket MainQueue::asyncAfter(std::chrono::milliseconds delay, Task task)
{
    const Ticket ticket = ++m_lastTicket;
    auto* const timer = new QTimer(this);
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, ticket, task = std::move(task)] {
        // A copy, since withdrawing the ticket schedules the timer, and with it
        // this closure, for deletion.
        Entry due{ticket, task};
        withdraw(ticket);
        enqueue(std::move(due));
    });
    m_delayed.emplace_back(ticket, timer);
    timer->start(delay);
    return ticket;
}

void MainQueue::withdraw(Ticket ticket)
{
    const auto delayed =
        std::ranges::find(m_delayed, ticket, [](const auto& entry) { return entry.first; });
    if (delayed != m_delayed.end()) {
        delayed->second->stop();
        delayed->second->deleteLater();
        m_delayed.erase(delayed);
    }
    std::erase_if(m_entries, [ticket](const Entry& entry) { return entry.ticket == ticket; });
}

void MainQueue::enqueue(Entry entry)
{
    m_entries.push_back(std::move(entry));
    scheduleRun();
}

void MainQueue::scheduleRun()
{
    QMetaObject::invokeMethod(this, &MainQueue::runNext, Qt::QueuedConnection);
}

void MainQueue::runNext()
{
    // One call was scheduled for each entry. A call that comes while a task
    // sits in a nested event loop, or the queue is held, is made good afterwards.
    if (m_isRunning || isHeld() || m_entries.empty())
        return;
    const Task task = std::move(m_entries.front().task);
    m_entries.pop_front();
    m_isRunning = true;
    task();
    m_isRunning = false;
    if (!m_entries.empty())
        scheduleRun();
}
