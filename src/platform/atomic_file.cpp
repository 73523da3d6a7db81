// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/atomic_file.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

std::optional<QString> writeAtomically(const QString& path, const QByteArray& contents,
                                       std::optional<QFileDevice::Permissions> permissions)
{
    if (path.isEmpty())
        return qt_error_string(ENOENT);
    // rename() would replace a pipe or device; it refuses a directory itself.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir())
        return QSaveFile::tr("Existing file %1 is not writable").arg(path);
    // A link to a file stays a link.
    const QString replacedPath = target.exists() ? target.canonicalFilePath() : path;
    if (!permissions && target.exists())
        permissions = target.permissions() | QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    // QSaveFile refuses a write-protected target, so it writes a new file, to be renamed.
    const QString newPath =
        replacedPath + u'.' + QString::number(QRandomGenerator::system()->generate(), 16);
    QSaveFile file(newPath);
    // Unbuffered: commit() of Qt 6.4 does not notice that its last flush failed, and a
    // full disk would leave the file cut short.
    bool isGood = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    if (isGood && permissions)
        isGood = file.setPermissions(*permissions);
    for (qint64 done = 0; isGood && done < contents.size();) {
        const qint64 written = file.write(contents.constData() + done, contents.size() - done);
        isGood = written > 0;
        done += written;
    }
    // commit() ignores what this says, and in a network folder only this tells that a quota
    // was exceeded. EINVAL and ENOSYS: the file system cannot be asked.
    if (isGood && ::fdatasync(file.handle()) != 0 && errno != EINVAL && errno != ENOSYS)
        return qt_error_string(errno);
    if (!isGood || !file.commit())
        return file.errorString();
    if (std::rename(QFile::encodeName(newPath), QFile::encodeName(replacedPath)) == 0)
        return std::nullopt;
    const QString failure = qt_error_string(errno);
    QFile::remove(newPath);
    return failure;
}
