// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the preferences that is about the user's own photos.
#include "platform/album_folder.h"
#include "platform/localized_text.h"
#include "platform/main_queue.h"
#include "platform/photo_library.h"
#include "platform/platform.h"
#include "platform/widgets/control_text.h"
#include "platform/workspace.h"
#include "settings/preferences/preferences.h"
#include "ui/elided_label.h"

#include <QFile>
#include <ui_preferences.h>

void Preferences::connectPhotoControls()
{
    connect(m_ui->photosButton, &QPushButton::clicked, this,
            [] { platform().photos.requestAuthorization(); });
    // The start of a game may ask as well. Whoever did has stored the answer by then.
    connect(
        &platform().mainQueue, &MainQueue::heldChanged, this,
        [this](bool isHeld) {
            if (isHeld)
                return;
            updatePhotosRow();
            rebuildCardDeckMenu();
            updatePaircadeAlbumState();
        },
        Qt::QueuedConnection);
    connect(paircade_album(), &QCheckBox::toggled, this, [](bool isChecked) {
        if (isChecked)
            openPaircadeAlbum();
    });
}

void Preferences::updatePhotosRow()
{
    const PhotoLibrary& photos = platform().photos;
    const PhotoAuthorization status = photos.authorizationStatus();
    QString state = localizedText("preferences_photos_none");
    if (status == PhotoAuthorization::notDetermined)
        state = localizedText("preferences_photos_not_asked");
    else if (status == PhotoAuthorization::authorized)
        state = localizedText("preferences_photos_all");
    QStringList folder;
    if (status == PhotoAuthorization::limited) {
        folder << photos.limitedTo();
        state = localizedText("preferences_photos_only", {folder.constFirst()});
    }
    m_photosState->setText(state, folder);

    const bool isRestricted = status == PhotoAuthorization::restricted;
    const bool wasNeverAsked = isRestricted || status == PhotoAuthorization::notDetermined;
    const QString reason =
        isRestricted ? localizedText("preferences_photos_unavailable") : QString();
    QPushButton& button = *m_ui->photosButton;
    button.setText(
        controlText(wasNeverAsked ? "preferences_photos_allow" : "preferences_photos_change"));
    button.setEnabled(!isRestricted);
    button.setToolTip(reason);
    button.setAccessibleDescription(isRestricted ? state + QStringLiteral(". ") + reason : state);
}

void Preferences::openPaircadeAlbum()
{
    const PhotoLibrary& photos = platform().photos;
    if (!allowsReading(photos.authorizationStatus()))
        return;
    if (const auto folder = albumFolder(photos.readableFolder(), "Paircade"))
        platform().workspace.openFile(QFile::decodeName(*folder));
}
