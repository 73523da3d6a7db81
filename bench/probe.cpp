// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "probe.h"

#include "report.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

namespace {

/// A number of the process's own, of this thread as far as they are counted apart.
long fromStatus(const char* name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.mid(line.indexOf(':') + 1).simplified().split(' ').front().toLong();
    }
    return -1;
}

void tell(const char* moment)
{
    std::printf("probe %s %.3f %.3f %ld %ld\n", moment,
                milliseconds(CLOCK_MONOTONIC) - qgetenv("PROBE_BEGIN").toDouble(),
                milliseconds(CLOCK_PROCESS_CPUTIME_ID), fromStatus("VmHWM"),
                fromStatus("voluntary_ctxt_switches"));
    std::fflush(stdout);
}

class Probe : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isPaint = event->type() == QEvent::Paint;
        if (isPaint && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow())
            m_isPainting = true;
        // The window paints its parts and is flushed before anything else happens.
        if (m_isPainting && !isPaint) {
            QCoreApplication::instance()->removeEventFilter(this);
            painted();
        }
        return false;
    }

private:
    void painted()
    {
        tell("painted");
        const double seconds = qgetenv("PROBE_SECONDS").toDouble();
        if (seconds <= 0) {
            // A proper end: one that leaves its lock behind makes the next start slower.
            QCoreApplication::exit(0);
            return;
        }
        // Its first pictures may come later.
        QTimer::singleShot(500, this, [this, seconds] { rest(seconds); });
    }

    void rest(double seconds)
    {
        // The caret's blinking is the desktop's, not the program's.
        QApplication::setCursorFlashTime(0);
        QTimer::singleShot(int(prepareRest() * 1000), this, [this, seconds] {
            tell("rested");
            QTimer::singleShot(int(seconds * 1000), this, [] {
                tell("waited");
                QCoreApplication::exit(0);
            });
        });
    }

    bool m_isPainting = false;
};

void install()
{
    QCoreApplication::instance()->installEventFilter(new Probe(QCoreApplication::instance()));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(install)
