// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"

#include "platform/atomic_file.h"
#include "platform/user_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// Close to a million results. What is longer could be longer than the memory.
constexpr qint64 longestFile = qint64{256} * 1024 * 1024;

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

std::optional<HighscoreEntries> readHighscores(const QString& path)
{
    // Opening a pipe waits for whoever writes into it, and a device may never end.
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > longestFile)
        return std::nullopt;
    const QByteArray json = file.readAll();
    // readAll() answers a failure with what it had got so far.
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return decodeHighscores(json);
}

bool writeHighscores(const QString& path, const HighscoreEntries& entries)
{
    return !writeAtomically(path, encodeHighscores(entries));
}
