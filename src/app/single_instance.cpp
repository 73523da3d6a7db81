// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/single_instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QSysInfo>
#include <QThread>
#include <QTimer>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds patience{2000};
constexpr qint64 longestToken = 4096;

/// Short, since the path of a socket is limited to some 100 bytes.
QString socketPathFor(const QString& folder)
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (runtime.isEmpty())
        return {};
    const QByteArray path = QFile::encodeName(QFileInfo(folder).canonicalFilePath());
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex();
    return runtime + QStringLiteral("/paircade-") + QString::fromLatin1(hash.first(16));
}

/// Passes the token to the game that listens; true once it has answered.
bool handOver(const QString& socketPath, const QByteArray& token, const QDeadlineTimer& deadline)
{
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    if (socketPath.isEmpty())
        return false;
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    if (!socket.waitForConnected(left()))
        return false;
    socket.write(QByteArray(token).replace('\n', ' ') + '\n');
    return socket.waitForReadyRead(left());
}

/// Whether the process lives that `lock` names; one on another machine is taken to.
bool isOwnerAlive(const QLockFile& lock)
{
    qint64 process = 0;
    QString machine;
    QString program;
    if (!lock.getLockInfo(&process, &machine, &program))
        return false; // cut short by a crash
    if (machine != QSysInfo::machineHostName())
        return true;
    // Its number may have passed to another program; its file may have been updated.
    const QString running = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process));
    const bool isThere = ::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM;
    return isThere && (running.isEmpty() || QFileInfo(running).fileName().startsWith(program));
}

/// Whether a process that lives holds the lock: it keeps the file locked, too. On a
/// network folder that knows no such locks, what the file says has to do.
bool isHeld(const QLockFile& lock)
{
    const QByteArray path = QFile::encodeName(lock.fileName());
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return errno == EACCES; // somebody else's, of whom nothing is known
    const bool isFree = ::flock(file, LOCK_SH | LOCK_NB) == 0;
    const bool isKnown = isFree || errno == EWOULDBLOCK;
    ::close(file);
    return isKnown ? !isFree : isOwnerAlive(lock);
}

} // namespace

QByteArray SingleInstance::ownActivationToken()
{
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

SingleInstance::Claim SingleInstance::claim(const QString& folder,
                                            const QByteArray& activationToken)
{
    if (folder.isEmpty())
        return Claim::isOurs;
    const QString lockPath = folder + QStringLiteral("/lock");
    // What is no file is no game's lock, and a pipe would be waited for.
    const QFileInfo inTheWay(lockPath);
    if ((inTheWay.exists() || inTheWay.isSymLink()) && !inTheWay.isFile())
        return Claim::isOurs;
    m_lock = std::make_unique<QLockFile>(lockPath);
    m_lock->setStaleLockTime(0);
    const QString socketPath = socketPathFor(folder);
    const QDeadlineTimer deadline(patience);
    do {
        if (m_lock->tryLock(0)) {
            listen(socketPath);
            return Claim::isOurs;
        }
        // Where no lock can be made, no other game is known of.
        if (m_lock->error() != QLockFile::LockFailedError)
            return Claim::isOurs;
        if (handOver(socketPath, activationToken, deadline))
            return Claim::handedOver;
        // The other game is not quite there yet, or just going.
        QThread::msleep(50);
    } while (!deadline.hasExpired());
    // A lock that nobody holds: left by a crash and cut short, or by this machine under
    // another name. It cannot be removed while its owner lives.
    const bool isRemoved = m_lock->removeStaleLockFile();
    if ((isRemoved || (!isHeld(*m_lock) && QFile::remove(lockPath))) && m_lock->tryLock(0)) {
        listen(socketPath);
        return Claim::isOurs;
    }
    // One that is left but cannot be removed keeps nobody from playing.
    return isHeld(*m_lock) ? Claim::noAnswer : Claim::isOurs;
}

void SingleInstance::listen(const QString& socketPath)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (socketPath.isEmpty())
        return;
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
