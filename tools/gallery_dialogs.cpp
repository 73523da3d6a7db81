// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_dialogs.h"

#include "gallery_stage.h"
#include "platform/widgets/access_question.h"
#include "settings/preferences/preferences.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

class DialogPictures : public GalleryStage {
public:
    using GalleryStage::GalleryStage;

    void paintAll()
    {
        menus();
        messages();
        photoMessages();
        preferences();
        photos();
    }

private:
    void menus()
    {
        const Window shown = window(u"Kids"_s, 1);
        for (auto* const menu : shown->window().menuBar()->findChildren<QMenu*>()) {
            if (menu->objectName().isEmpty())
                continue; // Qt's own, for menus that have no room
            menu->popup(shown->window().pos());
            m_camera.keep(*menu, menu->objectName());
            menu->close();
        }
    }

    void messages()
    {
        const Window shown = window(u"Unknown"_s, 1);
        const auto photograph = [this](const QString& name, const auto& show) {
            whenAlerted([this, name](QMessageBox& box) { m_camera.keep(box, name); });
            show();
        };
        photograph(u"message-too-few"_s, [&] { startSolo(*shown); });
        for (const QString& item : {u"menu_keyboard"_s, u"menu_about"_s})
            photograph(item, [&] { shown->child<QAction>(item).trigger(); });
        photograph(u"message-running"_s,
                   [] { showInformation(u"Paircade"_s, localizedText("already_running")); });
        // A folder stands where the page of the results would.
        QDir().mkpath(QFileInfo(shown->platform.highscoreFile()).path() + u"/highscores.html"_s);
        photograph(u"message-page"_s,
                   [&] { shown->click(shown->child<QPushButton>(u"reportButton"_s)); });
    }

    void preferences()
    {
        using enum PhotoAuthorization;
        preferencePane(u"open"_s, u"Kids"_s, restricted);
        preferencePane(u"locked"_s, u"80s"_s, denied);
        preferencePane(u"not-asked"_s, u"iPhoto"_s, notDetermined);
        preferencePane(u"album"_s, u"iPhoto: Holidays in Norway"_s, authorized);
        preferencePane(u"limited"_s, u"iPhoto"_s, limited);
    }

    void preferencePane(const QString& name, const QString& deck, PhotoAuthorization status)
    {
        const Window shown = window(deck, 4, shortNames, [status](StagePlatform& platform) {
            platform.photos.status = status;
            platform.photos.content.list = {{u"Holidays in Norway"_s, 40}, {u"Grandmother"_s, 12}};
            platform.photos.folder = u"The pictures of our long way to the north"_s;
        });
        if (name == u"locked")
            startSolo(*shown);
        shown->child<QAction>(u"menu_preferences"_s).trigger();
        QTest::qWait(60);
        auto& pane = shown->child<Preferences>(QString());
        m_camera.keep(pane, u"preferences-"_s + name);
        if (name == u"album") {
            pane.cardDeck_dropdown()->showPopup();
            m_camera.keep(*pane.cardDeck_dropdown()->view()->window(), u"preferences-decks"_s);
            pane.cardDeck_dropdown()->hidePopup();
        }
    }

    /// What the player reads when a photo deck cannot be dealt: why, then how many
    /// photos it takes.
    void photoMessages()
    {
        using enum PhotoAuthorization;
        photoMessages(u"iPhoto"_s, denied,
                      {u"iphoto_access_denied"_s, u"iphoto_not_enough_images"_s});
        photoMessages(u"iPhoto: Gone"_s, authorized,
                      {u"iphoto_album_not_found"_s, u"iphoto_not_enough_images_in_album"_s});
        photoMessages(u"iPhoto: Gone"_s, limited, {u"iphoto_album_incomplete"_s, {}});
        photoMessages(u"iPhoto"_s, authorized, {u"iphoto_no_images_found"_s, {}});
    }

    void photoMessages(const QString& deck, PhotoAuthorization status, const QStringList& names)
    {
        const Window shown = window(deck, 4, shortNames, [status](StagePlatform& platform) {
            platform.photos.status.reset();
            platform.photoAccess.write({status, "/a folder on a disk that is gone"});
            QDir().mkpath(platform.home.filePath(u"Pictures"_s));
        });
        qsizetype seen = 0;
        const std::function<void(QMessageBox&)> look = [&](QMessageBox& box) {
            if (!names[seen].isEmpty())
                m_camera.keep(box, names[seen]);
            if (++seen < names.size())
                whenAlerted(look);
        };
        whenAlerted(look);
        startSolo(*shown);
        if (!QTest::qWaitFor([&] { return seen == names.size(); }))
            qFatal("not all messages came up for %s", qPrintable(deck));
    }

    /// An album of 24 landscapes, each with a sky, a hill and a sun of its own.
    static void paintPhotos(const StagePlatform& platform)
    {
        const QString album = platform.home.filePath(u"Pictures/Hills"_s);
        QDir().mkpath(album);
        for (int i = 0; i < 24; ++i) {
            QImage photo(640, 480, QImage::Format_RGB32);
            photo.fill(QColor::fromHsv(i * 15, 110, 235));
            QPainter painter(&photo);
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor::fromHsv((i * 15 + 40) % 360, 60, 255));
            painter.drawEllipse(120 + 35 * (i % 10), 60 + 15 * (i % 7), 90, 90);
            painter.setBrush(QColor::fromHsv((i * 15 + 180) % 360, 150, 130));
            painter.drawEllipse(-300 + 60 * (i % 8), 280, 900, 600);
            photo.save(album + u"/%1.jpg"_s.arg(i));
        }
    }

    void photos()
    {
        const Window shown = window(u"iPhoto"_s, 4, shortNames, [](StagePlatform& platform) {
            paintPhotos(platform);
            platform.photos.status.reset();
            platform.photoAccess.write({PhotoAuthorization::authorized});
        });
        QTimer::singleShot(100, qApp, [this, &shown] {
            QWidget* const question = QApplication::activeModalWidget();
            m_camera.keep(*question, u"question"_s);
            keep(*shown, u"under-the-question"_s);
            question->close();
        });
        (void)AccessQuestion(shown->resources()).askForPhotoAccess();
        startSolo(*shown);
        findPairs(*shown, 4);
        m_camera.wait(1);
        keep(*shown, u"board-photos"_s);
    }
};

} // namespace

void paintDialogs(const QString& folder, const QString& language)
{
    DialogPictures(folder, language).paintAll();
}
