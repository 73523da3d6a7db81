// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Plays in the real window with mouse and keyboard.
#include "platform/user_folders.h"
#include "settings/settings_keys.h"
#include "stage/game_window.h"

using namespace Qt::StringLiterals;

class WindowPlayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<GameWindow>(); }
    void cleanup() { m_window.reset(); }

    void aWholeGameByMouse()
    {
        // A name of nothing but blanks starts nothing.
        m_window->startGame(u"  "_s);
        QVERIFY(!isVisible(u"nameLine"_s) && !game().isGameActive());
        QVERIFY(!m_window->child<QWidget>(u"startButton"_s).isEnabled());
        QVERIFY(m_window->text(u"headerText"_s).isEmpty());

        m_window->type(u"Ann "_s);
        QCoreApplication::processEvents();
        // A card lies there after the first half of the double click.
        QTest::mouseDClick(m_window->window().windowHandle(), Qt::LeftButton, {},
                           placeOn(u"startButton"_s));
        QCoreApplication::processEvents();
        QVERIFY(game().isGameActive());
        QCOMPARE(faceUpCards(game()), 0);
        QCOMPARE(m_window->text(u"nameLine"_s), u"Ann"_s);
        QCOMPARE(m_window->text(u"headerText"_s), u"Round 1 of 1"_s);

        while (game().isGameActive())
            m_window->clickPair();
        QVERIFY(game().gameCompleted());
        QCOMPARE(m_window->text(u"headerText"_s), game().winnerText());
        QVERIFY(!m_window->card(0).isVisible());
        QCOMPARE(m_window->focused(), u"playerName"_s);
        QCOMPARE(m_window->text(u"bestTimes1"_s), u"1. Ann – "_s + game().formattedElapsedTime());
        QCOMPARE(m_window->text(u"bestFailures1"_s), u"1. Ann – 0"_s);
        QVERIFY(m_window->platform.readHighscoreFile().contains("\"playerName\": \"Ann\""));
        m_window->click(u"versusCheckbox"_s); // the result was one of the other mode
        QCOMPARE(m_window->text(u"headerText"_s), QString());
    }

    void aWholeGameByKeyboard()
    {
        m_window->platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        m_window->type(u"Ann"_s);
        m_window->press(Qt::Key_Return);
        m_window->repeat(Qt::Key_Return, u"\r"_s); // the key that started
        QCOMPARE(m_window->focused(), u"card0"_s);
        QCOMPARE(faceUpCards(game()), 0);
        while (game().isGameActive()) {
            const std::size_t first = hiddenCard(game());
            const std::size_t second = otherCard(game(), first, true);
            const bool isLastRound = game().currentRound() == 2;
            pressOn(first, Qt::Key_Space);
            pressOn(second, isLastRound ? Qt::Key_Return : Qt::Key_Space);
            if (!game().isGameActive())
                break;
            // A new round keeps the focus at its place, and none of its cards is turned.
            QCoreApplication::processEvents();
            QCOMPARE(m_window->focused(), u"card%1"_s.arg(second));
            QCOMPARE(faceUpCards(game()) % 2, 0);
            m_window->press(Qt::Key_Escape); // the board of the last round may still be seen
        }
        QVERIFY(game().gameCompleted());
        QCOMPARE(game().failedAttempts(), 0);
        m_window->repeat(Qt::Key_Return, u"\r"_s); // the key that won
        QVERIFY(!game().isGameActive());
        m_window->repeat(Qt::Key_A, u"a"_s);
        QCOMPARE(game().playerName(), u"Ann"_s);
        m_window->type(u"a"_s);
        m_window->repeat(Qt::Key_A, u"a"_s);
        QCOMPARE(game().playerName(), u"Annaa"_s);
        m_window->press(Qt::Key_Left);
        m_window->type(u"bc"_s); // the cursor stays
        QCOMPARE(game().playerName(), u"Annabca"_s);
    }

    void arrowsStopAtTheEdges()
    {
        UserDefaults(settingsFile()).setInteger(SettingsKeys::AmountCards, 6); // by another program
        m_window->startGame();
        const QList<std::pair<Qt::Key, int>> path{
            {Qt::Key_Left, 0},  {Qt::Key_Up, 0},    {Qt::Key_Right, 1}, {Qt::Key_Down, 9},
            {Qt::Key_Down, 17}, {Qt::Key_Down, 25}, {Qt::Key_End, 31},  {Qt::Key_Right, 31},
            {Qt::Key_Down, 39}, {Qt::Key_Down, 39}, {Qt::Key_Home, 32}, {Qt::Key_Left, 32},
            {Qt::Key_Up, 24}};
        for (const auto& [key, position] : path) {
            m_window->press(key);
            QCOMPARE(m_window->focused(), u"card%1"_s.arg(position));
        }
        m_window->press(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(m_window->focused(), u"card39"_s);
    }

    void aMissTurnsBackUnderTheAlertOfTheReportAndAfterAQueuedOne()
    {
        // A folder in the place of the report.
        QDir().mkpath(m_window->platform.home.filePath(u"data/Paircade/highscores.html/x"_s));
        m_window->startGame();
        for (const bool isReport : {true, false}) {
            m_window->clickCard(0);
            m_window->clickCard(otherCard(game(), 0, false));
            m_window->clickCard(hiddenCard(game())); // in vain
            std::ptrdiff_t open = -1;
            QString told;
            QTimer::singleShot(1500, qApp, [&] {
                open = faceUpCards(game());
                whenAlerted([&](QMessageBox& box) {
                    GameWindow::repeatOn(box, Qt::Key_Return); // of a key that is still held
                    told = u"closed "_s.repeated(!box.isVisible()) + box.text() + u'|' +
                           box.informativeText() + u'|' + box.buttons().constFirst()->text();
                });
            });
            if (isReport)
                game().openHighscoresHTML();
            else
                game().showLocalizedAlert("ok");
            QTRY_VERIFY(open >= 0 && QApplication::activeModalWidget() == nullptr);
            QCOMPARE(open, isReport ? 0 : 2);
            QCOMPARE(told, isReport ? u"The highscore page could not be saved|"
                                      "Is a directory|OK"_s
                                    : u"OK||OK"_s);
            QTRY_COMPARE(faceUpCards(game()), 0);
        }
        QCOMPARE(m_window->text(u"failuresLine"_s), u"Failed attempts: 2"_s);
        QVERIFY(game().elapsedSeconds() >= 2);
        QTRY_COMPARE(m_window->text(u"timeLine"_s), u"Time: "_s + game().formattedElapsedTime());
    }

    void aVersusGameByMouse()
    {
        m_window->click(u"versusCheckbox"_s);
        QCOMPARE(m_window->focused(), u"versusCheckbox"_s);
        QCOMPARE(m_window->text(u"pairingLine"_s), u"Player 1 vs Player 2"_s);

        m_window->click(u"playerOneName"_s);
        m_window->type(u"Ann"_s);
        m_window->press(Qt::Key_Tab);
        m_window->startGame(u"Ben"_s); // in vain: Return only ends the name
        QVERIFY(!game().isGameActive());
        m_window->click(u"startVersusButton"_s);
        QVERIFY(game().isGameActive());

        m_window->clickPair();
        QCOMPARE(m_window->text(u"firstScoreLine"_s), u"Ann: 1"_s);
        QCOMPARE(m_window->text(u"secondScoreLine"_s), u"Ben: 0"_s);

        // Ended by hand, the game is recorded once; what is left is no place to slip.
        QTest::mouseClick(m_window->window().windowHandle(), Qt::LeftButton, {},
                          placeOn(u"endButton"_s));
        m_window->child<QAbstractButton>(u"endButton"_s).click(); // before the screen follows
        QCOMPARE(m_window->platform.readHighscoreFile().count("\"id\""), 1);
        QCoreApplication::processEvents();
        QVERIFY(!game().isGameActive() && !isVisible(u"endButton"_s));
        QCOMPARE(m_window->text(u"bestVersus1"_s), u"1. Ann vs Ben – 1:0"_s);
        QCOMPARE(m_window->focused(), u"playerOneName"_s);
        QVERIFY(m_window->text(u"headerText"_s).isEmpty());
    }

    /// No event comes in between: the screen has not followed yet.
    void inputInAHurryActsOnWhatTheGameHasComeTo()
    {
        m_window->type(u"Ann"_s);
        QCoreApplication::processEvents();
        auto& checkbox = m_window->child<QAbstractButton>(u"versusCheckbox"_s);
        pressAt(u"startButton"_s);
        pressAt(u"versusCheckbox"_s);
        QVERIFY(game().isGameActive() && !game().isVersusMode());
        checkbox.click();
        QVERIFY(!game().isVersusMode() && !checkbox.isChecked());

        game().endGame();
        QCoreApplication::processEvents();
        game().startNewGame(); // the form is still shown, with the focus on its field
        for (const bool isPress : {true, false})
            QTest::simulateEvent(m_window->window().windowHandle(), isPress, Qt::Key_Space, {},
                                 u" "_s, false);
        QVERIFY(game().cards()[0].isFaceUp);
        QCOMPARE(game().playerName(), u"Ann"_s);
    }

private:
    MemoryGame& game() { return m_window->game(); }
    bool isVisible(const QString& name) { return m_window->child<QWidget>(name).isVisible(); }

    QPoint placeOn(const QString& name)
    {
        return m_window->child<QWidget>(name).mapTo(&m_window->window(), QPoint(10, 5));
    }

    /// Clicks without letting anything happen before or after.
    void pressAt(const QString& name)
    {
        QTest::mouseClick(m_window->window().windowHandle(), Qt::LeftButton, {}, placeOn(name));
    }

    /// Goes to the card and presses the key there.
    void pressOn(std::size_t position, Qt::Key key)
    {
        const auto columns = std::size_t(game().cardColumns());
        m_window->press(Qt::Key_Home, Qt::ControlModifier);
        for (std::size_t row = 0; row < position / columns; ++row)
            m_window->press(Qt::Key_Down);
        for (std::size_t column = 0; column < position % columns; ++column)
            m_window->press(Qt::Key_Right);
        m_window->press(key);
    }

    std::unique_ptr<GameWindow> m_window{};
};

QTEST_MAIN(WindowPlayTest)
#include "window_play_test.moc"
