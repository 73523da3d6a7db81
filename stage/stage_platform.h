// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/access_prompt.h"
#include "platform/alerts.h"
#include "platform/application_bundle.h"
#include "platform/audio_player.h"
#include "platform/localized_text.h"
#include "platform/main_queue.h"
#include "platform/notification_center.h"
#include "platform/photo_library.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"
#include "platform/workspace.h"

#include <QStringList>
#include <QTemporaryDir>
#include <memory>

/// Keeps the alerts instead of showing them, for callers without a window.
class AlertLog : public Alerts {
public:
    void warn(const QString& messageText, const QString& informativeText,
              const QString& buttonTitle) override
    {
        shown << messageText + QLatin1Char('|') + informativeText + QLatin1Char('|') + buttonTitle;
    }

    QStringList shown{}; ///< "message|informative text|button", oldest first.
};

/// Remembers what it should open; no other program starts.
class OpenedFiles : public Workspace {
public:
    void openFile(const QString& path) const override { paths << path; }

    mutable QStringList paths{}; ///< Oldest first.
};

/// Answers as it is told, and counts how often it was asked.
class StagePrompt : public AccessPrompt {
public:
    std::optional<PhotoAccess> askForPhotoAccess() override
    {
        ++asked;
        return answer;
    }

    std::optional<PhotoAccess> answer{};
    int asked = 0;
};

/// The real photo library of the home, in its folder Pictures, but for what its
/// owner puts in its place. Restricted if not told otherwise.
class StagePhotoLibrary : public PhotoLibrary {
public:
    using PhotoLibrary::PhotoLibrary;

    [[nodiscard]] PhotoAuthorization authorizationStatus() const override
    {
        return status ? *status : PhotoLibrary::authorizationStatus();
    }
    [[nodiscard]] PhotoAlbums albums() override
    {
        ++listed;
        return status ? content : PhotoLibrary::albums();
    }
    [[nodiscard]] QString limitedTo() const override
    {
        return status ? folder : PhotoLibrary::limitedTo();
    }

    std::optional<PhotoAuthorization> status = PhotoAuthorization::restricted; ///< None: the real.
    PhotoAlbums content{};
    int listed = 0; ///< How often the albums were asked for.
    QString folder{};
};

/// A fresh home with the real services in it, and English texts if not told
/// otherwise.
///
/// Settings and results are real files under a temporary folder; decks, sounds
/// and texts are those of the build. Sounds are off.
class StagePlatform {
public:
    /// `alerts` shows the alerts; without one they go to alertLog.
    explicit StagePlatform(Alerts* alerts = nullptr,
                           const QString& language = QStringLiteral("en"));
    ~StagePlatform();

    /// The languages of all catalogues of the build.
    [[nodiscard]] static QStringList languages();

    /// Replaces the resources by those of `resourceFolder`.
    void useResources(const QString& resourceFolder);

    /// Takes the decks, sounds and texts of the build again.
    void useBuiltResources();

    /// The file of the results, whether it is there or not.
    [[nodiscard]] QString highscoreFile() const;
    void writeHighscoreFile(const QByteArray& contents) const;
    [[nodiscard]] QByteArray readHighscoreFile() const;

    QTemporaryDir home{};
    std::unique_ptr<UserDefaults> defaults{};
    MainQueue mainQueue{};
    NotificationCenter notifications{};
    AudioPlayer audio{};
    StagePrompt prompt{};
    PhotoAccessStore photoAccess{home.filePath(QStringLiteral("config/Paircade/PhotoAccess.conf"))};
    StagePhotoLibrary photos{photoAccess, &prompt, home.filePath(QStringLiteral("Pictures")),
                             PhotoLibrary::helperOfRunningProgram()};
    AlertLog alertLog{};
    OpenedFiles openedFiles{};

private:
    Alerts& m_alerts;
    std::unique_ptr<ApplicationBundle> m_bundle{};
    std::unique_ptr<Platform> m_platform{};
    Catalogues m_texts{};
};
