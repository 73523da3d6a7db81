// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/user_folders.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString settingsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Paircade/");
}

} // namespace

QString applicationSupportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString settingsFile()
{
    return settingsFolder() + QStringLiteral("Paircade.conf");
}

QString picturesFolder()
{
    const QString folder =
        QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    return folder == QDir::homePath() ? QString() : folder;
}

QString photoAccessFile()
{
    return settingsFolder() + QStringLiteral("PhotoAccess.conf");
}
