// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the window shows in each state: lists, menu; and full screen.
#include "settings/settings_keys.h"
#include "stage/game_window.h"
#include "support/results.h"
#include "ui/elided_label.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

class WindowStateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fullScreenGivesTheSizeBack()
    {
        GameWindow window;
        window.press(Qt::Key_F11);
        QTRY_COMPARE(window.window().size(), window.screen().size());
        const auto& item = window.child<QAction>(u"menu_full_screen"_s);
        QVERIFY(item.isChecked());
        window.platform.defaults->setInteger(SettingsKeys::AmountCards, 6);
        window.delegate.updateWindowSizeForCurrentLayout();
        window.press(Qt::Key_F11);
        QTRY_COMPARE(window.contentSize(), GameWindow::sizeFor(cardLayouts.back()));
        QCOMPARE(window.delegate.contentView()->calculateCardSize({700, 500}), 70.0);
        QVERIFY(!item.isChecked());
        QTRY_COMPARE(window.window().minimumSize(), window.window().maximumSize());
        window.window().showFullScreen(); // as by a key of the desktop
        QTRY_VERIFY(item.isChecked());

        window.window().showMinimized();
        window.delegate.activate(); // by another start
        QVERIFY(!window.window().isMinimized());
    }

    void windowFollowsMenuBarAndScreen()
    {
        GameWindow window;
        const QSize size = GameWindow::sizeFor(cardLayouts.front());
        const QPoint place(20, 30); // where the player has put it
        QTest::qWait(650);          // the window awaits its frame no longer
        window.window().move(place);
        window.window().menuBar()->updateGeometry();
        QTest::qWait(20);
        QCOMPARE(window.window().pos(), place);

        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* const screen : {screens[1], screens[0]}) {
            window.window().windowHandle()->setScreen(screen);
            QTRY_COMPARE(window.contentSize() == size, screen == screens[0]);
            QVERIFY(screen->geometry().contains(window.window().geometry()));
        }

        const QFont font = QApplication::font("QMenuBar");
        QFont larger = font;
        larger.setPointSize(3 * font.pointSize());
        for (const QFont& shown : {larger, font}) {
            QApplication::setFont(shown, "QMenuBar");
            QTest::qWait(20); // lays out
            QCOMPARE(window.contentSize(), size);
            QCOMPARE(window.window().geometry().center(), window.screen().center());
        }
    }

    void theSidebarShowsFiveOfEachList()
    {
        const QString name = u"<img src=x>&amp; %2"_s; // never markup
        GameWindow window(
            [&](auto& platform) { writeResults(platform, 12, {.playerName = name}); });
        QCOMPARE(window.text(u"bestTimes1"_s), u"1. "_s + name + u" – 00:59"_s);
        QCOMPARE(window.text(u"bestTimes5"_s), u"5. "_s + name + u" – 01:03"_s);
        QCOMPARE(window.text(u"bestFailures1"_s), u"1. "_s + name + u" – 9"_s);
        QCOMPARE(window.window().findChild<QLabel*>(u"bestTimes6"_s), nullptr);
        for (const QLabel* const label : window.window().findChildren<QLabel*>())
            QCOMPARE(label->textFormat(), Qt::PlainText);
        window.click(u"versusCheckbox"_s);
        QCOMPARE(window.text(u"bestVersus1"_s), u"1. "_s + name + u" vs Player 2 – 0:0"_s);
    }

    void menuAndSidebarFollowTheGame()
    {
        const QString wide(60, u'W');
        GameWindow window([&wide](auto& platform) {
            writeResults(platform, 1, {.playerName = wide, .secondPlayerName = wide + u'2'});
        });
        const auto enabled = [&window] {
            QStringList items;
            for (const QString& item : {u"new_game"_s, u"end_game"_s, u"restore_highscores"_s}) {
                if (window.child<QAction>(u"menu_"_s + item).isEnabled())
                    items << item;
            }
            return items.join(u' ');
        };
        QCOMPARE(enabled(), QString());

        window.type(u"Ann"_s);
        QCoreApplication::processEvents();
        QCOMPARE(enabled(), u"new_game"_s);
        window.click(u"reportButton"_s);
        window.choose(u"menu_new_game"_s);
        QVERIFY(window.game().isGameActive());
        QCOMPARE(enabled(), u"end_game"_s);
        window.click(u"reportButton"_s);
        window.choose(u"menu_open_highscores_html"_s);
        QCOMPARE(window.platform.openedFiles.paths.size(), 3); // at any time
        window.choose(u"menu_end_game"_s);
        QVERIFY(!window.game().isGameActive());

        const QLabel& line = window.child<QLabel>(u"bestTimes1"_s);
        window.click(u"resetButton"_s);
        QVERIFY(!line.isVisible());
        QCOMPARE(enabled(), u"new_game restore_highscores"_s);
        window.choose(u"menu_restore_highscores"_s);
        QVERIFY(line.isVisible());
        QCOMPARE(enabled(), u"new_game"_s);

        window.click(u"versusCheckbox"_s);
        QVERIFY(window.child<ElidedLabel>(u"bestVersus1"_s).shownText().endsWith(u" – 0:0"_s));
    }
};

QTEST_MAIN(WindowStateTest)
#include "window_state_test.moc"
