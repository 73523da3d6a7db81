// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the window shows in each state, its sizes, menu and full screen.
#include "game/game_status.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"

#include <QAction>
#include <QDir>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {

QByteArray soloRecord(const QString& name, int seconds, int failures)
{
    return fillFormat(uR"({"id": "%1", "gameMode": "solo", "playerName": "%2", "elapsedSeconds": %3,
                           "failedAttempts": %4, "amountCards": 1, "amountRounds": 1})",
                      {QUuid::createUuid().toString(QUuid::WithoutBraces), name, seconds, failures})
        .toUtf8();
}

void writeSoloRecords(TestPlatform& platform, int count,
                      const QString& name = QStringLiteral("Mia"))
{
    QByteArrayList records;
    for (int i = 0; i < count; ++i)
        records << soloRecord(name, 59 + i, 20 - i);
    platform.writeHighscoreFile('[' + records.join(',') + ']');
}

} // namespace

class WindowStateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowTakesTheSizeOfItsLayout_data()
    {
        QTest::addColumn<qint64>("amountCards");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("cards");

        QTest::newRow("first") << qint64{1} << QSize(1100, 700) << 12;
        QTest::newRow("second") << qint64{2} << QSize(1150, 760) << 16;
        QTest::newRow("third") << qint64{3} << QSize(1220, 760) << 20;
        QTest::newRow("fourth") << qint64{4} << QSize(1320, 760) << 24;
        QTest::newRow("fifth") << qint64{5} << QSize(1420, 760) << 28;
        QTest::newRow("sixth") << qint64{6} << QSize(1580, 900) << 40;
        QTest::newRow("below the table") << qint64{-3} << QSize(1100, 700) << 12;
        QTest::newRow("above it: largest board, smallest window")
            << qint64{9} << QSize(1100, 700) << 40;
    }

    void theWindowTakesTheSizeOfItsLayout()
    {
        QFETCH(qint64, amountCards);
        QFETCH(QSize, size);
        QFETCH(int, cards);
        GameWindow window([&](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::AmountCards, amountCards);
        });
        QCOMPARE(window.delegate.contentView()->size(), size);
        QCOMPARE(window.window().minimumSize(), window.window().maximumSize());
        QCOMPARE(window.window().geometry().center(),
                 QGuiApplication::primaryScreen()->geometry().center());
        QVERIFY(window.window().windowTitle().isEmpty());

        window.startGame();
        QCOMPARE(window.game().cards().size(), std::size_t(cards));
    }

    void cardSizesFollowTheRule_data()
    {
        QTest::addColumn<qint64>("amountCards");
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<double>("edge");

        QTest::newRow("width decides") << qint64{4} << QSizeF(1150, 760) << 125.0;
        QTest::newRow("height decides") << qint64{1} << QSizeF(1100, 700) << 500.0 / 3;
        QTest::newRow("never below 70") << qint64{6} << QSizeF(700, 500) << 70.0;
        QTest::newRow("no room at all") << qint64{6} << QSizeF(100, 100) << 70.0;
    }

    void cardSizesFollowTheRule()
    {
        QFETCH(qint64, amountCards);
        QFETCH(QSizeF, size);
        GameWindow window;
        window.platform.defaults->setInteger(SettingsKeys::AmountCards, amountCards);
        QTEST(window.delegate.contentView()->calculateCardSize(size), "edge");
    }

    void anotherLayoutResizesAndCentresTheWindow()
    {
        GameWindow window;
        int posts = 0;
        window.platform.notifications.observe(gameLayoutChanged, &window.window(),
                                              [&] { ++posts; });
        window.platform.defaults->setInteger(SettingsKeys::AmountCards, 6);
        window.delegate.updateWindowSizeForCurrentLayout();
        QCOMPARE(posts, 1);
        QTRY_COMPARE(window.delegate.contentView()->size(), QSize(1580, 900));
        QCOMPARE(window.window().geometry().center(),
                 QGuiApplication::primaryScreen()->geometry().center());
    }

    void withoutAWindowALayoutChangesNothing()
    {
        TestPlatform platform;
        int posts = 0;
        platform.notifications.observe(gameLayoutChanged, platform.defaults.get(),
                                       [&] { ++posts; });
        AppDelegate delegate;
        delegate.updateWindowSizeForCurrentLayout();
        QCOMPARE(posts, 0);
    }

    void fullScreenKeepsItsSizeAndGivesItBack()
    {
        GameWindow window([](TestPlatform& platform) {
            platform.defaults->setInteger(SettingsKeys::LaunchInFullscreen, 1);
        });
        const QSize screen = QGuiApplication::primaryScreen()->size();
        QTRY_COMPARE(window.window().size(), screen);
        QVERIFY(window.window().isFullScreen());
        auto& item = window.child<QAction>(QStringLiteral("menu_full_screen"));
        QVERIFY(item.isChecked());

        window.startGame();
        const int before = window.card(0).width();
        window.platform.defaults->setInteger(SettingsKeys::AmountCards, 6);
        window.delegate.updateWindowSizeForCurrentLayout();
        QCOMPARE(window.window().size(), screen);
        QVERIFY(window.card(0).width() < before);

        window.press(Qt::Key_F11);
        QTRY_COMPARE(window.delegate.contentView()->size(), QSize(1580, 900));
        QVERIFY(!item.isChecked());
        QCOMPARE(window.window().minimumSize(), window.window().maximumSize());
    }

    void theSidebarShowsFiveOfEachList()
    {
        GameWindow window([](TestPlatform& platform) { writeSoloRecords(platform, 12); });
        QCOMPARE(window.game().bestTimeScores().size(), 10U);
        QCOMPARE(window.text(QStringLiteral("bestTimesHeading")), QStringLiteral("Best Times"));
        QCOMPARE(window.text(QStringLiteral("bestTimes1")), QStringLiteral("1. Mia – 00:59"));
        QCOMPARE(window.text(QStringLiteral("bestTimes5")), QStringLiteral("5. Mia – 01:03"));
        QCOMPARE(window.text(QStringLiteral("bestFailures1")), QStringLiteral("1. Mia – 9"));
        QVERIFY(!window.child<QWidget>(QStringLiteral("bestVersusHeading")).isVisible());
    }

    void aLowWindowScrollsTheListsAndAVeryLowOneEverything_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<bool>("buttonsAreSeen");
        QTest::newRow("low") << 620 << true;
        QTest::newRow("very low") << 500 << false;
    }

    void aLowWindowScrollsTheListsAndAVeryLowOneEverything()
    {
        QFETCH(int, height);
        QFETCH(bool, buttonsAreSeen);
        GameWindow window([](TestPlatform& platform) { writeSoloRecords(platform, 12); });
        window.startGame();
        window.window().setContentSize({1100, height});
        QTest::qWait(50);
        auto& sidebar = window.child<QScrollArea>(QStringLiteral("leftSidebar"));
        auto& lists = window.child<QScrollArea>(QStringLiteral("highscoreArea"));
        QCOMPARE(sidebar.verticalScrollBar()->maximum() == 0, buttonsAreSeen);
        QCOMPARE(lists.verticalScrollBar()->maximum() > 0, buttonsAreSeen);

        // Whatever scrolls, the logo goes with it and the last button can be reached.
        sidebar.verticalScrollBar()->setValue(sidebar.verticalScrollBar()->maximum());
        QCOMPARE(window.child<QWidget>(QStringLiteral("logo")).y(),
                 22 - sidebar.verticalScrollBar()->maximum());
        const QPushButton& end = window.child<QPushButton>(QStringLiteral("endButton"));
        QVERIFY(sidebar.viewport()->rect().contains(
            QRect(end.mapTo(sidebar.viewport(), QPoint()), end.size())));
    }

    void aVersusRecordMayLackNamesAndScores()
    {
        GameWindow window([](TestPlatform& platform) {
            platform.writeHighscoreFile(soloRecord(QStringLiteral("Ann"), 1, 2)
                                            .replace("solo", "versus")
                                            .prepend('[')
                                            .append(']'));
        });
        window.click(window.child<QAbstractButton>(QStringLiteral("versusCheckbox")));
        QCOMPARE(window.text(QStringLiteral("bestVersus1")),
                 QStringLiteral("1. Ann vs Player 2 – 0:0"));
    }

    void namesAreNeverMarkup()
    {
        const QString name = QStringLiteral("<img src=x>&amp; %2");
        GameWindow window([&](TestPlatform& platform) { writeSoloRecords(platform, 1, name); });
        const QLabel& line = window.child<QLabel>(QStringLiteral("bestTimes1"));
        QCOMPARE(line.text(), QStringLiteral("1. ") + name + QStringLiteral(" – 00:59"));
        for (const QLabel* const label : window.window().findChildren<QLabel*>())
            QCOMPARE(label->textFormat(), Qt::PlainText);
    }

    void theMenuFollowsTheGame()
    {
        GameWindow window([](TestPlatform& platform) { writeSoloRecords(platform, 1); });
        auto& newGame = window.child<QAction>(QStringLiteral("menu_new_game"));
        auto& endGame = window.child<QAction>(QStringLiteral("menu_end_game"));
        auto& restore = window.child<QAction>(QStringLiteral("menu_restore_highscores"));
        QVERIFY(!newGame.isEnabled() && !endGame.isEnabled() && !restore.isEnabled());

        window.type(QStringLiteral("Ann"));
        QCoreApplication::processEvents();
        QVERIFY(newGame.isEnabled());
        newGame.trigger();
        QCoreApplication::processEvents();
        QVERIFY(window.game().isGameActive() && !newGame.isEnabled() && endGame.isEnabled());
        endGame.trigger();
        QCoreApplication::processEvents();
        QVERIFY(!window.game().isGameActive() && newGame.isEnabled() && !endGame.isEnabled());

        window.click(window.child<QPushButton>(QStringLiteral("resetButton")));
        QVERIFY(!window.child<QLabel>(QStringLiteral("bestTimes1")).isVisible());
        QVERIFY(restore.isEnabled());
        restore.trigger();
        QCoreApplication::processEvents();
        QVERIFY(window.child<QLabel>(QStringLiteral("bestTimes1")).isVisible());
        QVERIFY(!restore.isEnabled());
    }

    void theReportOpensFromSidebarAndMenuAtAnyTime()
    {
        GameWindow window;
        const QStringList& opened = window.platform.openedFiles.paths;
        auto& button = window.child<QPushButton>(QStringLiteral("reportButton"));
        window.click(button);
        QCOMPARE(opened.size(), 1);
        window.startGame();
        window.click(button);
        window.child<QAction>(QStringLiteral("menu_open_highscores_html")).trigger();
        QCOMPARE(opened.size(), 3);

        // The alert waits for nothing: it is gone when the click is done.
        QVERIFY(QFile::remove(opened.constFirst()) && QDir().mkdir(opened.constFirst()));
        bool isShown = false;
        whenAlerted([&](QMessageBox& box) {
            isShown = true;
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QCOMPARE(box.text(), localizedText("highscores_export_error_title"));
            QCOMPARE(box.informativeText(), QStringLiteral("Filename refers to a directory"));
            QCOMPARE(box.buttons().constFirst()->text(), QStringLiteral("OK"));
        });
        window.click(button);
        QVERIFY(isShown);
        QCOMPARE(opened.size(), 3);
    }

    void eachStateOfACardIsDrawnAndNamed()
    {
        GameWindow window;
        window.startGame();
        window.clickPair();
        const std::size_t hidden = hiddenCard(window.game());
        window.clickCard(hidden);
        const std::size_t back = hiddenCard(window.game());
        const auto found =
            std::size_t(std::ranges::find_if(window.game().cards(), &MemoryCard::isMatched) -
                        window.game().cards().begin());
        const QString picture = window.game().cards()[hidden].image.name;

        QTest::qWait(500); // until the cards lie still

        // A point of the outline, half way down the left edge.
        QVERIFY(isYellow(pixel(window, found, {1, 0.5})));
        QVERIFY(pixel(window, hidden, {0, 0.5}).saturation() < 20);
        QCOMPARE(pixel(window, hidden, {40, 0.5}),
                 window.game().cards()[hidden].image.image.pixelColor(8, 8));
        const QColor teal = pixel(window, back, {4, 0.5});
        QVERIFY(teal.green() > 120 && teal.red() < 40 && teal.blue() > 140);

        const auto place = [&](std::size_t card) {
            return QStringLiteral("Row %1, column %2, ").arg(card / 4 + 1).arg(card % 4 + 1);
        };
        QCOMPARE(window.card(back).accessibleName(), place(back) + QStringLiteral("face down"));
        QCOMPARE(window.card(hidden).accessibleName(), place(hidden) + picture);
        QVERIFY(window.card(found).accessibleName().startsWith(place(found)));

        // Found pairs leave at the next change, not when the setting is written.
        window.platform.defaults->setInteger(SettingsKeys::RemoveMatch, 1);
        QVERIFY(isYellow(pixel(window, found, {1, 0.5})));
        const QRect before = window.card(found).geometry();
        window.clickCard(otherCard(window.game(), hidden, true));
        QTest::qWait(500);
        QCOMPARE(pixel(window, found, {40, 0.5}),
                 window.window().palette().color(QPalette::Window));
        QCOMPARE(window.card(found).accessibleName(), place(found) + QStringLiteral("empty"));
        QCOMPARE(window.card(found).geometry(), before);
    }

private:
    /// The colour on the board at `where` (points from the left, share of the
    /// height) of the card `position`.
    static QColor pixel(GameWindow& window, std::size_t position, QPointF where)
    {
        auto& board = window.child<QWidget>(QStringLiteral("gameBoard"));
        const QRect card = window.card(position).geometry();
        return board.grab().toImage().pixelColor(card.x() + int(where.x()),
                                                 card.y() + int(where.y() * card.height()));
    }

    /// Yellow at 95 % over any light ground.
    static bool isYellow(const QColor& colour)
    {
        return colour.red() > 250 && qAbs(colour.green() - 205) < 4 && colour.blue() < 15;
    }
};

QTEST_MAIN(WindowStateTest)
#include "window_state_test.moc"
