// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Ends the program's event loop, as choosing Quit does, when the system asks:
/// at SIGTERM, SIGINT, SIGHUP, and at the end of the session. The window gets no
/// close event, so that nothing is announced. Photos under way are given up.
///
/// SIGPIPE is ignored: whoever reads the log may go away.
class Termination : public QObject {
    Q_OBJECT

public:
    /// Takes over the signals; there is one at a time. The destructor gives them back.
    Termination();
    ~Termination() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
