// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/photo_library.h"

#include "platform/access_prompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

PhotoLibrary::PhotoLibrary(PhotoAccessStore& store, AccessPrompt* prompt, QString picturesFolder,
                           QString helperProgram)
    : m_store(store)
    , m_prompt(prompt)
    , m_picturesFolder(std::move(picturesFolder))
    , m_helperProgram(std::move(helperProgram))
{
}

QString PhotoLibrary::helperOfRunningProgram()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../libexec/paircade/paircade-photos"));
}

PhotoAuthorization PhotoLibrary::authorizationStatus() const
{
    if (m_picturesFolder.isEmpty() || !QFileInfo(m_helperProgram).isExecutable())
        return PhotoAuthorization::restricted;
    return m_store.read().status;
}

PhotoAuthorization PhotoLibrary::requestAuthorization()
{
    const auto answer = m_prompt == nullptr ? std::nullopt : m_prompt->askForPhotoAccess();
    if (!answer)
        return PhotoAuthorization::denied;
    m_store.write(*answer);
    return authorizationStatus();
}

QByteArray PhotoLibrary::readableFolder() const
{
    switch (authorizationStatus()) {
    case PhotoAuthorization::authorized:
        return QFile::encodeName(m_picturesFolder);
    case PhotoAuthorization::limited:
        return m_store.read().folder;
    default:
        return {};
    }
}

PhotoAlbums PhotoLibrary::albums()
{
    return startFetch()->albums(PhotoFetch::Counted::upToOne);
}

QString PhotoLibrary::limitedTo() const
{
    const PhotoAccess access = m_store.read();
    if (access.status != PhotoAuthorization::limited)
        return {};
    const QString folder = QDir::cleanPath(QFile::decodeName(access.folder));
    const QString name = QFileInfo(folder).fileName();
    return name.isEmpty() ? folder : name;
}

std::unique_ptr<PhotoFetch> PhotoLibrary::startFetch() const
{
    return std::make_unique<PhotoFetch>(m_helperProgram, readableFolder());
}
