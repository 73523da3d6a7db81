// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stage/stage_platform.h"

#include "platform/user_folders.h"
#include "settings/default_settings.h"
#include "settings/settings_keys.h"
#include "stage/files.h"

#include <QCoreApplication>
#include <QDir>

StagePlatform::StagePlatform(Alerts* alerts, const QString& language)
    : m_alerts(alerts == nullptr ? alertLog : *alerts)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath(QStringLiteral("data"))));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(QStringLiteral("config"))));
    defaults = std::make_unique<UserDefaults>(settingsFile());
    useBuiltResources();
    createDefaultSettings(*defaults);
    defaults->setInteger(SettingsKeys::PlaySounds, 0);
    if (!m_texts.install(*m_bundle->resourceFolder() + QStringLiteral("/translations"), {language}))
        qFatal("the texts are missing");
}

StagePlatform::~StagePlatform()
{
    usePlatform(nullptr);
}

QStringList StagePlatform::languages()
{
    const QDir folder(ApplicationBundle::ofRunningProgram().resourceFolder().value() +
                      QStringLiteral("/translations"));
    QStringList languages = folder.entryList({QStringLiteral("paircade_*.qm")});
    for (QString& name : languages)
        name = name.section(u'_', 1).chopped(3);
    return languages;
}

void StagePlatform::useResources(const QString& resourceFolder)
{
    m_bundle = std::make_unique<ApplicationBundle>(resourceFolder);
    m_platform = std::make_unique<Platform>(Platform{*defaults, *m_bundle, mainQueue, notifications,
                                                     audio, photos, m_alerts, openedFiles});
    usePlatform(m_platform.get());
}

void StagePlatform::useBuiltResources()
{
    useResources(ApplicationBundle::ofRunningProgram().resourceFolder().value());
}

QString StagePlatform::highscoreFile() const
{
    return home.filePath(QStringLiteral("data/Paircade/highscores.json"));
}

void StagePlatform::writeHighscoreFile(const QByteArray& contents) const
{
    QDir().mkpath(home.filePath(QStringLiteral("data/Paircade")));
    writeFile(highscoreFile(), contents);
}

QByteArray StagePlatform::readHighscoreFile() const
{
    return contentsOf(highscoreFile());
}
