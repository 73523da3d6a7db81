// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"

#include "platform/atomic_file.h"
#include "platform/user_folders.h"
#include "platform/within_memory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <unistd.h>

namespace {

/// The longest file whose records this machine can hold.
///
/// The system grants more memory than there is, and ends the game once it is used.
qint64 longestFile()
{
    // To add a result takes 3.6 times the length of a file of ours, and 5.5 times that of
    // one without white space; the rest is for what else the system does.
    constexpr qint64 memoryPerByte = 8;
    return ::sysconf(_SC_PHYS_PAGES) * ::sysconf(_SC_PAGESIZE) / memoryPerByte;
}

} // namespace

QString highscoreFolder()
{
    const QString support = applicationSupportFolder();
    if (support.isEmpty())
        return {};
    const QString folder = support + QStringLiteral("/Paircade");
    if (!QFile::exists(folder))
        QDir().mkpath(folder);
    return folder;
}

QString highscoreFile()
{
    const QString folder = highscoreFolder();
    return folder.isEmpty() ? folder : folder + QStringLiteral("/highscores.json");
}

StoredHighscores readHighscores(const QString& path)
{
    // Opening a pipe waits for whoever writes into it, and a device may never end.
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return {};
    StoredHighscores stored{.mustStay = QFileInfo(path).isReadable()};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > longestFile())
        return stored;
    (void)withinMemory([&] {
        const QByteArray json = file.readAll();
        // readAll() answers a failure with what it had got so far.
        if (file.error() != QFileDevice::NoError)
            return;
        stored.entries = decodeHighscores(json);
        stored.mustStay = false;
    });
    return stored;
}

bool writeHighscores(const QString& path, const HighscoreEntries& entries)
{
    return !writeAtomically(path, encodeHighscores(entries));
}
