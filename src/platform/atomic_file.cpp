// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/atomic_file.h"

#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <unistd.h>

std::optional<QString> writeAtomically(const QString& path, const QByteArray& contents,
                                       std::optional<QFileDevice::Permissions> permissions)
{
    // A pipe or a device would be gone, a link to one followed. Of folders it knows.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir())
        return QSaveFile::tr("Existing file %1 is not writable").arg(path);
    QSaveFile file(path);
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
    if (isGood && file.commit())
        return std::nullopt;
    return file.errorString();
}
