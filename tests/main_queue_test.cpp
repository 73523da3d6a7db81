// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/main_queue.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QThread>
#include <optional>
#include <thread>

using namespace std::chrono_literals;

class MainQueueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_queue.emplace();
        m_log.clear();
    }

    void runsInOrderAfterTheCurrentTurn()
    {
        m_queue->async(note("first"));
        m_queue->async(note("second"));
        QCOMPARE(m_log, QByteArray());
        QTRY_COMPARE(m_log, QByteArray("first, second"));
    }

    void aDelayedTaskJoinsWhenItIsDue()
    {
        QElapsedTimer clock;
        clock.start();
        qint64 elapsed = 0;
        m_queue->asyncAfter(80ms, [&] {
            elapsed = clock.elapsed();
            note("late")();
        });
        m_queue->asyncAfter(20ms, note("early"));
        m_queue->async(note("at once"));
        QTRY_COMPARE(m_log, QByteArray("at once, early, late"));
        QVERIFY2(elapsed >= 80, qPrintable(QString::number(elapsed)));
    }

    void aTaskInANestedLoopHoldsLaterOnesBack()
    {
        m_queue->async([this] {
            m_queue->async(note("queued by the first"));
            m_queue->asyncAfter(10ms, note("due meanwhile"));
            QTest::qWait(60); // as a modal alert does
            note("first ends")();
        });
        m_queue->async([this] {
            QTest::qWait(20);
            note("second ends")();
        });
        m_queue->async(note("third"));
        QTRY_COMPARE(m_log, QByteArray("first ends, second ends, third, queued by the first, "
                                       "due meanwhile"));
    }

    void aWithdrawnTaskNeverRuns()
    {
        const MainQueue::Ticket beforeDue = m_queue->asyncAfter(20ms, note("withdrawn before due"));
        m_queue->asyncAfter(0ms, [&] {
            const auto queued = m_queue->asyncAfter(0ms, note("withdrawn when queued"));
            QTest::qWait(40); // it falls due and has to wait
            m_queue->withdraw(queued);
            note("ran")();
        });
        for (const MainQueue::Ticket ticket : {beforeDue, beforeDue, MainQueue::Ticket{0}})
            m_queue->withdraw(ticket);
        m_queue->asyncAfter(90ms, note("others run on"));
        QTRY_COMPARE(m_log, QByteArray("ran, others run on"));
    }

    void pendingTasksDieWithTheQueue()
    {
        // What a task holds must go as well, the tasks being never run.
        const auto held = std::make_shared<int>(1);
        m_queue->async([this, held] { note("async")(); });
        m_queue->asyncAfter(1ms, [this, held] { note("delayed")(); });
        m_queue->withdraw(m_queue->asyncAfter(1ms, note("withdrawn")));
        m_queue.reset();
        QTest::qWait(30);
        QCOMPARE(m_log, QByteArray());
        QCOMPARE(held.use_count(), 1);
    }

    void aTaskMayComeFromAnyThread()
    {
        int onMainThread = 0;
        const auto* const here = QThread::currentThread();
        std::thread([&] {
            for (int i = 0; i < 100; ++i)
                m_queue->async([&] { onMainThread += QThread::currentThread() == here ? 1 : 0; });
        }).join();
        QTRY_COMPARE(onMainThread, 100);
    }

private:
    MainQueue::Task note(const QByteArray& text)
    {
        return [this, text] { m_log += m_log.isEmpty() ? text : ", " + text; };
    }

    std::optional<MainQueue> m_queue{};
    QByteArray m_log{};
};

QTEST_GUILESS_MAIN(MainQueueTest)
#include "main_queue_test.moc"
