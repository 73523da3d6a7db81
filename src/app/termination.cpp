// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/termination.h"

#include "platform/photo_helper.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// What a signal handler may do is to write a byte; the event loop reads it.
std::array<int, 2> wakeUp{-1, -1};

void noteSignal(int)
{
    const int before = errno; // of whatever was interrupted
    const char byte = 0;
    (void)!write(wakeUp[1], &byte, 1);
    errno = before;
}

} // namespace

Termination::Termination()
{
    QCoreApplication::instance()->installEventFilter(this);
    std::signal(SIGPIPE, SIG_IGN);
    if (pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    PhotoHelper::interruptWhenReadable(wakeUp[0]);
    auto* const notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [] {
        char byte = 0;
        (void)!read(wakeUp[0], &byte, 1);
        QCoreApplication::exit(0);
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, noteSignal);
}

Termination::~Termination()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, SIG_DFL);
    PhotoHelper::interruptWhenReadable(-1);
    for (int& end : wakeUp) {
        close(end);
        end = -1;
    }
}

bool Termination::eventFilter(QObject* watched, QEvent* event)
{
    // Sent by the session's end; by itself it would close the window.
    if (event->type() == QEvent::Quit && watched == QCoreApplication::instance()) {
        QCoreApplication::exit(0);
        return true;
    }
    return QObject::eventFilter(watched, event);
}
