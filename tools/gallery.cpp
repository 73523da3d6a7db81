// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writes pictures of every screen that a player can meet, taken of the real
// window: gallery FOLDER LANGUAGE light|dark. See tools/gallery.
#include "gallery_dialogs.h"
#include "gallery_stage.h"
#include "platform/widgets/palettes.h"

#include <QAction>
#include <QIcon>
#include <QLibraryInfo>
#include <QScreen>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const QStringList decks{u"Kids"_s, u"Cyberpunk"_s, u"70s"_s, u"80s"_s};
const QStringList longNames{u"Maximilian-Alexander"_s, u"Ann & <b>Bob</b>"_s,
                            u"Wilhelmina von Hohenlohe"_s, u"WWWWWWWWWWWWWWWWWWWW"_s, u"%1"_s};

class Gallery : public GalleryStage {
public:
    using GalleryStage::GalleryStage;

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
        deckSheets();
    }

private:
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
        const Window shown = window(u"80s"_s, 2, names, [](StagePlatform& platform) {
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
            window(decks[(layout + 2) % 4], layout, shortNames, [layout](StagePlatform& platform) {
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
        const Window shown = window(u"Cyberpunk"_s, 1, shortNames, [](StagePlatform& platform) {
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
        m_camera.wait(0.8); // both pictures are seen first
        film(5, u"turn-removed"_s);
        m_camera.wait(1);
        missPair(*shown);
        m_camera.wait(0.27);
        keep(*shown, u"board-turning"_s);
    }

    /// From the last pair to the result; each deck at another moment.
    void ending(qsizetype deck)
    {
        const Window shown = window(decks[deck], 1, shortNames, [](StagePlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::AmountRounds, 1);
        });
        startSolo(*shown);
        missAndThink(*shown, 41 + 3 * int(deck));
        findPairs(*shown, 6);
        m_camera.wait(0.14 + 0.06 * double(deck));
        keep(*shown, u"leaving-"_s + decks[deck]);
        m_camera.wait(0.35);
        keep(*shown, u"fading-"_s + decks[deck]);
        m_camera.wait(0.24 + 0.25 * double(deck)); // the board has faded
        keep(*shown, u"celebration-"_s + decks[deck]);
        m_camera.wait(2);
        keep(*shown, u"result-"_s + decks[deck]);
    }

    /// A screen smaller than the layout asks for, or the whole of a large one.
    void otherSize(bool isSmall)
    {
        const Window shown = window(u"80s"_s, 6);
        if (isSmall)
            shown->window().windowHandle()->setScreen(QGuiApplication::screens().constLast());
        else
            shown->child<QAction>(u"menu_full_screen"_s).trigger();
        QTest::qWait(600); // the window follows its screen
        const QString kind = isSmall ? u"small-"_s : u"full-"_s;
        keep(*shown, kind + u"start"_s);
        startSolo(*shown);
        findPairs(*shown, 3);
        m_camera.wait(1);
        keep(*shown, kind + u"board"_s);
    }

    void deckSheets()
    {
        for (const QString& deck : decks) {
            m_camera.keepDeck(deck, 500.0 / 3, 180, u"deck-"_s + deck);
            m_camera.keepDeck(deck, 70, 180, u"deck-small-"_s + deck);
            m_camera.keepDeck(deck, 115, 115, u"deck-turning-"_s + deck);
        }
    }
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
    const QString folder = QString::fromLocal8Bit(argv[1]);
    Gallery(folder, language).paintAll();
    paintDialogs(folder, language);
    return 0;
}
