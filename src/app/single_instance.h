// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <memory>

/// Sees to it that one game at a time uses a folder of results.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Claim {
        isOurs,     ///< No other game uses the folder, or none can be detected.
        handedOver, ///< Another one does; it was brought to the front.
        noAnswer,   ///< Another one does, and did not answer in time.
    };

    /// Claims `folder` for this process as long as this object lives. Waits up
    /// to two seconds for the answer of another game.
    [[nodiscard]] Claim claim(const QString& folder);

Q_SIGNALS:
    /// Another start was made. `activationToken` is what the desktop gave it to
    /// bring a window to the front; it may be empty.
    void startedAgain(const QByteArray& activationToken);

private:
    void listen(const QString& socketPath);
    void answer();

    std::unique_ptr<QLockFile> m_lock{};
    QLocalServer m_server{};
};
