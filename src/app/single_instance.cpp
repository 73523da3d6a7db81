// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/single_instance.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds patience{2000};
constexpr qint64 longestToken = 4096;

/// Short, since the path of a socket is limited to some 100 bytes.
QString socketPathFor(const QString& folder)
{
    const QByteArray path = QFile::encodeName(QFileInfo(folder).canonicalFilePath());
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           QStringLiteral("/paircade-") + QString::fromLatin1(hash.first(16));
}

/// The token by which the desktop lets a started program take the focus.
QByteArray ownActivationToken()
{
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

/// Passes the token to the game that listens; true once it has answered.
bool handOver(const QString& socketPath)
{
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    if (!socket.waitForConnected(static_cast<int>(patience.count())))
        return false;
    socket.write(ownActivationToken().replace('\n', ' ') + '\n');
    return socket.waitForReadyRead(static_cast<int>(patience.count()));
}

} // namespace

SingleInstance::Claim SingleInstance::claim(const QString& folder)
{
    if (folder.isEmpty())
        return Claim::isOurs;
    m_lock = std::make_unique<QLockFile>(folder + QStringLiteral("/lock"));
    m_lock->setStaleLockTime(0);
    const QString socketPath = socketPathFor(folder);
    if (m_lock->tryLock(0)) {
        listen(socketPath);
        return Claim::isOurs;
    }
    // A folder that cannot be written holds no other game's lock either.
    if (m_lock->error() != QLockFile::LockFailedError)
        return Claim::isOurs;
    return handOver(socketPath) ? Claim::handedOver : Claim::noAnswer;
}

void SingleInstance::listen(const QString& socketPath)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
    // We hold the lock, so what lies there is the leaving of a crash.
    QLocalServer::removeServer(socketPath);
    m_server.listen(socketPath);
}

void SingleInstance::answer()
{
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(patience, socket, &QLocalSocket::abort);
        const auto read = [this, socket] {
            if (!socket->canReadLine() && socket->bytesAvailable() < longestToken)
                return;
            Q_EMIT startedAgain(socket->readLine(longestToken).trimmed());
            socket->write("ok\n");
            socket->flush();
            socket->disconnectFromServer();
        };
        connect(socket, &QLocalSocket::readyRead, socket, read);
        read();
    }
}
