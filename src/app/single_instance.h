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
    /// How a claim came out.
    enum class Claim {
        isOurs,     ///< No other game uses the folder, or none can be detected.
        handedOver, ///< Another one does; it was brought to the front.
        noAnswer,   ///< Another one does, and did not answer in time.
    };

    /// Claims `folder` for this process as long as this object lives. Where
    /// another game has it, passes it `activationToken` and waits up to two
    /// seconds for its answer, or for its end.
    [[nodiscard]] Claim claim(const QString& folder, const QByteArray& activationToken);

    /// What the desktop gave this process to bring a window to the front; may be
    /// empty. Asked before there is an application, which takes it away.
    [[nodiscard]] static QByteArray ownActivationToken();

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
