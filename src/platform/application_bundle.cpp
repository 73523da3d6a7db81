// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/application_bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <utility>

ApplicationBundle::ApplicationBundle(QString resourceFolder)
    : m_folder(std::move(resourceFolder))
{
}

ApplicationBundle ApplicationBundle::ofRunningProgram()
{
    return ApplicationBundle(QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                             QStringLiteral("/../share/paircade")));
}

std::optional<QString> ApplicationBundle::resourceFolder() const
{
    if (m_folder.isEmpty() || !QFileInfo(m_folder).isDir())
        return std::nullopt;
    return m_folder;
}

std::optional<QString> ApplicationBundle::resource(const QString& name, const QString& extension,
                                                   const QString& subfolder) const
{
    const QString path =
        QDir(m_folder + QLatin1Char('/') + subfolder).filePath(name + QLatin1Char('.') + extension);
    if (m_folder.isEmpty() || !QFileInfo(path).isFile())
        return std::nullopt;
    return path;
}
