// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writes pictures of every screen that a player can meet, taken of the real
// window: gallery FOLDER LANGUAGE light|dark. See tools/gallery.
#include "gallery_camera.h"
#include "gallery_play.h"
#include "platform/localized_text.h"
#include "platform/widgets/access_question.h"
#include "platform/widgets/palettes.h"
#include "settings/preferences/preferences.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QIcon>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

const QStringList decks{u"Kids"_s, u"Cyberpunk"_s, u"70s"_s, u"80s"_s};
const QStringList shortNames{u"Anna"_s, u"Mia"_s, u"Jonas"_s, u"Lena"_s, u"Ben"_s};
const QStringList longNames{u"Maximilian-Alexander"_s, u"Ann & <b>Bob</b>"_s,
                            u"Wilhelmina von Hohenlohe"_s, u"WWWWWWWWWWWWWWWWWWWW"_s, u"%1"_s};

class Gallery {
public:
    Gallery(const QString& folder, QString language)
        : m_camera(folder)
        , m_language(std::move(language))
    {
    }

    void paintAll()
    {
        firstStart();
        for (const QString& deck : decks + QStringList{u"iPhoto"_s})
            startForm(deck);
        for (const QStringList& names : {shortNames, longNames})
            versusForm(names);
        for (int layout = 1; layout <= 6; ++layout)
            board(layout);
        pointer();
        turns();
        for (qsizetype deck = 0; deck < decks.size(); ++deck)
            ending(deck);
        for (const bool isSmall : {false, true})
            otherSize(isSmall);
        menus();
        messages();
        preferences();
        photos();
        deckSheets();
    }

private:
    using Prepare = std::function<void(TestPlatform&)>;
    using Window = std::unique_ptr<GameWindow>;

    Window window(
        const QString& deck, int layout, const QStringList& players = shortNames,
        const Prepare& prepare = [](TestPlatform&) {})
    {
        auto shown = std::make_unique<GameWindow>(
            [&](TestPlatform& platform) {
                platform.useBuiltResources();
                platform.defaults->setString(SettingsKeys::CardDeck, deck);
                platform.defaults->setInteger(SettingsKeys::AmountCards, layout);
                platform.defaults->setInteger(SettingsKeys::AmountRounds, 3);
                prepare(platform);
                const auto rounds = platform.defaults->integer(SettingsKeys::AmountRounds);
                platform.writeHighscoreFile(results(players, layout, rounds));
            },
            m_language);
        QTest::qWait(60); // the fan reads its pictures
        m_camera.wait(2);
        return shown;
    }

    static QByteArray results(const QStringList& players, int layout, qint64 rounds)
    {
        QByteArrayList records;
        for (int i = 0; i < 2 * players.size(); ++i) {
            const int player = i / 2;
            records << fillFormat(uR"({"id": "%1", "gameMode": "%2", "playerName": "%3",
                                       "secondPlayerName": "%4", "elapsedSeconds": %5,
                                       "failedAttempts": %6, "firstPlayerScore": %7,
                                       "secondPlayerScore": 3, "amountCards": %8,
                                       "amountRounds": %9})",
                                  {QUuid::createUuid().toString(QUuid::WithoutBraces),
                                   i % 2 == 1 ? u"versus"_s : u"solo"_s, players[player],
                                   players[(player + 1) % players.size()], 58 + 9 * i, 4 + i, i,
                                   layout, rounds})
                           .toUtf8();
        }
        return '[' + records.join(',') + ']';
    }

    void keep(GameWindow& shown, const QString& name) { m_camera.keep(shown.window(), name); }

    static void startSolo(GameWindow& shown)
    {
        shown.type(shortNames.front());
        shown.press(Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    void nameTwo(GameWindow& shown, const QStringList& names)
    {
        shown.click(shown.child<QCheckBox>(u"versusCheckbox"_s));
        shown.click(shown.child<QLineEdit>(u"playerOneName"_s));
        shown.type(names.front());
        shown.click(shown.child<QLineEdit>(u"playerTwoName"_s));
        shown.type(names.back());
        m_camera.wait(1);
    }
    static void startVersus(GameWindow& shown)
    {
        shown.click(shown.child<QPushButton>(u"startVersusButton"_s));
    }

    /// Finds `pairs`, spread over the board.
    void findPairs(GameWindow& shown, int pairs)
    {
        for (int pair = 0; pair < pairs; ++pair) {
            const std::size_t first = hiddenFrom(shown.game(), std::size_t(pair) * 7 + 1);
            shown.clickCard(first);
            m_camera.wait(1);
            shown.clickCard(otherCard(shown.game(), first, true));
        }
    }
    static void missPair(GameWindow& shown)
    {
        const std::size_t first = hiddenFrom(shown.game(), shown.game().cards().size() / 2);
        shown.clickCard(first);
        shown.clickCard(otherCard(shown.game(), first, false));
    }

    void missAndThink(GameWindow& shown, int seconds)
    {
        missPair(shown);
        m_camera.wait(1);
        const ClockHand hand(seconds);
        if (!QTest::qWaitFor([&shown] { return !shown.game().isCheckingPair(); }, 3000))
            qFatal("the cards do not turn back");
        m_camera.wait(1);
    }

    void firstStart()
    {
        const Window shown = window(u"Cyberpunk"_s, 1, {});
        keep(*shown, u"start-first"_s);
    }

    void startForm(const QString& deck)
    {
        const Window shown = window(deck, deck == u"70s" ? 6 : 1);
        keep(*shown, u"start-"_s + deck);
        shown->type(shortNames.front());
        m_camera.wait(1);
        keep(*shown, u"start-named-"_s + deck);
    }

    void versusForm(const QStringList& names)
    {
        const QString kind = names == shortNames ? QString() : u"-long"_s;
        const Window shown = window(u"80s"_s, 2, names, [](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::AmountRounds, 1);
        });
        shown->click(shown->child<QCheckBox>(u"versusCheckbox"_s));
        m_camera.wait(1);
        keep(*shown, u"versus"_s + kind);
        shown->click(shown->child<QCheckBox>(u"versusCheckbox"_s));
        nameTwo(*shown, names);
        keep(*shown, u"versus-named"_s + kind);
        startVersus(*shown);
        findPairs(*shown, 7);
        m_camera.wait(1);
        keep(*shown, u"versus-board"_s + kind);
        findPairs(*shown, 1);
        m_camera.wait(1);
        m_camera.wait(3);
        keep(*shown, u"versus-result"_s + kind);
    }

    /// Found, turned and hidden cards, the focus ring; places of removed cards on
    /// the third layout, two players on the fifth, a second round on the first.
    void board(int layout)
    {
        const Window shown =
            window(decks[(layout + 2) % 4], layout, shortNames, [layout](TestPlatform& platform) {
                platform.defaults->setInteger(SettingsKeys::RemoveMatch, layout == 3 ? 1 : 0);
            });
        if (layout == 5) {
            nameTwo(*shown, shortNames);
            startVersus(*shown);
        } else {
            startSolo(*shown);
        }
        missAndThink(*shown, 9 * layout);
        findPairs(*shown, layout == 1 ? 8 : 2 + layout / 2);
        m_camera.wait(1);
        missPair(*shown);
        shown->press(layout % 2 == 0 ? Qt::Key_Down : Qt::Key_Right);
        m_camera.wait(1);
        keep(*shown, u"board-%1"_s.arg(layout));
    }

    /// One card under the pointer, another held down by a key.
    void pointer()
    {
        const Window shown = window(u"Kids"_s, 1);
        startSolo(*shown);
        shown->clickCard(0);
        auto& card = shown->card(6);
        QTest::mouseMove(shown->window().windowHandle(),
                         card.mapTo(&shown->window(), card.rect().center()));
        shown->card(9).setFocus();
        QTest::keyPress(shown->window().windowHandle(), Qt::Key_Space);
        m_camera.wait(1);
        keep(*shown, u"board-pointer"_s);
    }

    void turns()
    {
        const Window shown = window(u"Cyberpunk"_s, 1, shortNames, [](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::RemoveMatch, 1);
        });
        startSolo(*shown);
        const auto film = [&](std::size_t position, const QString& name) {
            const QWidget& card = shown->card(position);
            const QRect area(card.mapTo(&shown->window(), QPoint()), card.size());
            m_camera.film(shown->window(), area.adjusted(-18, -80, 18, 80), 10, 0.049, name);
        };
        shown->clickCard(5);
        film(5, u"turn"_s);
        m_camera.wait(1);
        const std::size_t other = otherCard(shown->game(), 5, true);
        shown->clickCard(other);
        film(5, u"turn-removed"_s);
        m_camera.wait(1);
        missPair(*shown);
        m_camera.wait(0.27);
        keep(*shown, u"board-turning"_s);
    }

    /// From the last pair to the result; each deck at another moment.
    void ending(qsizetype deck)
    {
        const Window shown = window(decks[deck], 1, shortNames, [](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::AmountRounds, 1);
        });
        startSolo(*shown);
        missAndThink(*shown, 41 + 3 * int(deck));
        findPairs(*shown, 6);
        m_camera.wait(0.14 + 0.06 * double(deck));
        keep(*shown, u"leaving-"_s + decks[deck]);
        m_camera.wait(0.35);
        keep(*shown, u"fading-"_s + decks[deck]);
        m_camera.wait(0.2 + 0.25 * double(deck));
        keep(*shown, u"celebration-"_s + decks[deck]);
        m_camera.wait(2);
        keep(*shown, u"result-"_s + decks[deck]);
    }

    /// A screen smaller than the layout asks for, or the whole of a large one.
    void otherSize(bool isSmall)
    {
        const Window shown = window(u"80s"_s, 6);
        if (isSmall)
            shown->window().setFixedSize(1024, 560);
        else
            shown->child<QAction>(u"menu_full_screen"_s).trigger();
        QTest::qWait(100);
        const QString kind = isSmall ? u"small-"_s : u"full-"_s;
        keep(*shown, kind + u"start"_s);
        startSolo(*shown);
        findPairs(*shown, 3);
        m_camera.wait(1);
        keep(*shown, kind + u"board"_s);
    }

    void menus()
    {
        const Window shown = window(u"Kids"_s, 1);
        for (auto* const menu : shown->window().menuBar()->findChildren<QMenu*>()) {
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
        for (const QByteArray key :
             {"iphoto_access_denied", "iphoto_album_not_found", "iphoto_no_images_found"}) {
            photograph(QString::fromLatin1(key), [&] {
                platform().alerts.warn(localizedText(key.constData()),
                                       localizedText((key + "_info").constData()),
                                       localizedText("ok"));
            });
        }
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
        const Window shown = window(deck, 4, shortNames, [status](TestPlatform& platform) {
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

    /// An album of 24 landscapes, each with a sky, a hill and a sun of its own.
    static void paintPhotos(const TestPlatform& platform)
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
        const Window shown = window(u"iPhoto"_s, 4, shortNames, [](TestPlatform& platform) {
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

    void deckSheets()
    {
        for (const QString& deck : decks) {
            m_camera.keepDeck(deck, 500.0 / 3, 180, u"deck-"_s + deck);
            m_camera.keepDeck(deck, 70, 180, u"deck-small-"_s + deck);
            m_camera.keepDeck(deck, 115, 115, u"deck-turning-"_s + deck);
        }
    }

    Camera m_camera;
    QString m_language;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc != 4)
        qFatal("usage: gallery FOLDER LANGUAGE light|dark");
    QApplication::setPalette(qstrcmp(argv[3], "dark") == 0 ? Palettes::dark() : Palettes::light());
    QApplication::setWindowIcon(QIcon(
        ApplicationBundle::ofRunningProgram().resource(u"icon"_s, u"png"_s).value_or(QString())));
    const QString language = QString::fromLocal8Bit(argv[2]);
    QTranslator controls;
    if (controls.load(QLocale(language), u"qtbase"_s, u"_"_s,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&controls);
    Gallery(QString::fromLocal8Bit(argv[1]), language).paintAll();
    return 0;
}
