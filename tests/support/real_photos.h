// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/access_question.h"
#include "stage/stage_platform.h"

/// While this lives, the photos are the real library over the folder `pictures`, and the
/// real dialog asks about them.
class RealPhotos {
public:
    RealPhotos(StagePlatform& services, Alerts& alerts, const QString& pictures)
        : m_question(pictures)
        , m_library(services.photoAccess, &m_question, pictures,
                    PhotoLibrary::helperOfRunningProgram())
        , m_platform{*services.defaults,
                     platform().bundle,
                     services.mainQueue,
                     services.notifications,
                     services.audio,
                     m_library,
                     alerts,
                     services.openedFiles}
    {
        usePlatform(&m_platform);
    }

private:
    AccessQuestion m_question;
    PhotoLibrary m_library;
    Platform m_platform;
};
