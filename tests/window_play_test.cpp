// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Plays in the real window with mouse and keyboard.
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "support/game_window.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class WindowPlayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<GameWindow>(); }
    void cleanup() { m_window.reset(); }

    void aNameReturnAndSpaceTurnTheFirstCard()
    {
        m_window->platform.writeHighscoreFile("[]");
        QCOMPARE(m_window->focused(), QStringLiteral("playerName"));
        // No pause between the keys: each acts on what the last one led to.
        m_window->type(QStringLiteral("Ann"));
        m_window->press(Qt::Key_Return);
        m_window->press(Qt::Key_Space);
        QCOMPARE(m_window->focused(), QStringLiteral("card0"));
        QVERIFY(m_window->game().cards()[0].isFaceUp);
        QCOMPARE(faceUpCards(m_window->game()), 1);
        QCOMPARE(m_window->platform.readHighscoreFile(), QByteArray("[]"));
    }

    void aWholeGameByMouse()
    {
        m_window->type(QStringLiteral(" Ann "));
        QCOMPARE(m_window->text(QStringLiteral("nameLine")), QStringLiteral("Ann"));
        m_window->click(m_window->child<QPushButton>(QStringLiteral("startButton")));
        QCOMPARE(m_window->text(QStringLiteral("headerText")), QStringLiteral("Round 1 of 1"));
        for (int pair = 0; pair < 6; ++pair)
            m_window->clickPair();

        QVERIFY(m_window->game().gameCompleted());
        QCOMPARE(m_window->text(QStringLiteral("headerText")), m_window->game().winnerText());
        QVERIFY(m_window->child<QLineEdit>(QStringLiteral("playerName")).isVisible());
        QVERIFY(!m_window->card(0).isVisible());
        QCOMPARE(m_window->focused(), QStringLiteral("playerName"));
        QCOMPARE(m_window->text(QStringLiteral("bestTimes1")),
                 QStringLiteral("1. Ann – ") + m_window->game().formattedElapsedTime());
        QCOMPARE(m_window->text(QStringLiteral("bestFailures1")), QStringLiteral("1. Ann – 0"));
        QVERIFY(m_window->platform.readHighscoreFile().contains("\"playerName\": \"Ann\""));

        // The next start takes the result away.
        m_window->press(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->text(QStringLiteral("headerText")), QStringLiteral("Round 1 of 1"));
    }

    void aWholeGameByKeyboard()
    {
        m_window->startGame();
        // In reading order, Space for one card and Return for the next.
        while (m_window->game().isGameActive()) {
            const std::size_t first = hiddenCard(m_window->game());
            moveTo(first);
            m_window->press(Qt::Key_Space);
            moveTo(otherCard(m_window->game(), first, true));
            m_window->press(Qt::Key_Return);
        }
        QVERIFY(m_window->game().gameCompleted());
        QCOMPARE(m_window->game().failedAttempts(), 0);
    }

    void arrowsStopAtTheEdges()
    {
        m_window->startGame();
        const QList<std::pair<Qt::Key, int>> path{
            {Qt::Key_Left, 0}, {Qt::Key_Up, 0},    {Qt::Key_Right, 1}, {Qt::Key_Down, 5},
            {Qt::Key_End, 7},  {Qt::Key_Right, 7}, {Qt::Key_Down, 11}, {Qt::Key_Down, 11},
            {Qt::Key_Home, 8}, {Qt::Key_Left, 8},  {Qt::Key_Up, 4}};
        for (const auto& [key, position] : path) {
            m_window->press(key);
            QCOMPARE(m_window->focused(), QStringLiteral("card%1").arg(position));
        }
        m_window->press(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(m_window->focused(), QStringLiteral("card11"));
    }

    void aMissTurnsBackAndBlocksClicksMeanwhile()
    {
        m_window->startGame();
        const std::size_t second = otherCard(m_window->game(), 0, false);
        m_window->clickCard(0);
        m_window->clickCard(second);
        QCOMPARE(m_window->game().failedAttempts(), 1);
        QCOMPARE(m_window->text(QStringLiteral("failuresLine")),
                 QStringLiteral("Failed attempts: 1"));
        m_window->clickCard(hiddenCard(m_window->game()));
        QCOMPARE(faceUpCards(m_window->game()), 2);
        QTRY_COMPARE_WITH_TIMEOUT(faceUpCards(m_window->game()), 0, 2000);
    }

    void aMissTurnsBackUnderOrAfterAnAlert_data()
    {
        QTest::addColumn<bool>("isReport");
        QTest::addColumn<std::ptrdiff_t>("openMeanwhile");
        QTest::newRow("of the report, shown at once") << true << std::ptrdiff_t{0};
        QTest::newRow("queued, holding back what falls due") << false << std::ptrdiff_t{2};
    }

    void aMissTurnsBackUnderOrAfterAnAlert()
    {
        QFETCH(bool, isReport);
        m_window->startGame();
        m_window->clickCard(0);
        m_window->clickCard(otherCard(m_window->game(), 0, false));
        std::ptrdiff_t open = -1;
        QTimer::singleShot(1500, qApp, [&] {
            open = faceUpCards(m_window->game());
            whenAlerted([](QMessageBox&) {});
        });
        if (isReport) { // a folder in its place
            QVERIFY(QDir().mkpath(m_window->platform.highscoreFile().replace(
                QStringLiteral(".json"), QStringLiteral(".html/x"))));
            m_window->game().openHighscoresHTML();
        } else {
            m_window->game().showLocalizedAlert("ok");
        }
        QTRY_VERIFY(open >= 0 && QApplication::activeModalWidget() == nullptr);
        QTEST(open, "openMeanwhile");
        QTRY_COMPARE(faceUpCards(m_window->game()), std::ptrdiff_t{0});
        m_window->clickPair();
        QCOMPARE(faceUpCards(m_window->game()), std::ptrdiff_t{2});
    }

    void aVersusGameByMouse()
    {
        auto& checkbox = m_window->child<QCheckBox>(QStringLiteral("versusCheckbox"));
        m_window->click(checkbox);
        QVERIFY(m_window->game().isVersusMode());
        QCOMPARE(m_window->focused(), QStringLiteral("versusCheckbox"));
        QCOMPARE(m_window->text(QStringLiteral("pairingLine")),
                 QStringLiteral("Player 1 vs Player 2"));
        QVERIFY(!m_window->child<QLabel>(QStringLiteral("timeLine")).isVisible());

        auto& start = m_window->child<QPushButton>(QStringLiteral("startVersusButton"));
        m_window->click(m_window->child<QLineEdit>(QStringLiteral("playerOneName")));
        m_window->type(QStringLiteral("Ann"));
        QCoreApplication::processEvents();
        QVERIFY(!start.isEnabled());
        m_window->press(Qt::Key_Tab);
        m_window->type(QStringLiteral("Ben"));
        m_window->press(Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(!m_window->game().isGameActive());
        QVERIFY(start.isEnabled());
        m_window->click(start);
        QVERIFY(m_window->game().isGameActive() && !checkbox.isEnabled());

        m_window->clickPair();
        QCOMPARE(m_window->text(QStringLiteral("firstScoreLine")), QStringLiteral("Ann: 1"));
        QCOMPARE(m_window->text(QStringLiteral("secondScoreLine")), QStringLiteral("Ben: 0"));

        // Ended by hand, the game is recorded; what is left is no place to slip.
        m_window->click(m_window->child<QPushButton>(QStringLiteral("endButton")));
        QVERIFY(!m_window->game().isGameActive());
        QCOMPARE(m_window->text(QStringLiteral("bestVersus1")),
                 QStringLiteral("1. Ann vs Ben – 1:0"));
        QCOMPARE(m_window->focused(), QStringLiteral("playerOneName"));
        QVERIFY(!m_window->child<QPushButton>(QStringLiteral("endButton")).isVisible());
        QVERIFY(m_window->text(QStringLiteral("headerText")).isEmpty());
    }

    void aFormWithoutANameStartsNothing()
    {
        m_window->type(QStringLiteral("  "));
        QCoreApplication::processEvents();
        QVERIFY(!m_window->child<QPushButton>(QStringLiteral("startButton")).isEnabled());
        QVERIFY(!m_window->child<QLabel>(QStringLiteral("nameLine")).isVisible());
        m_window->press(Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(!m_window->game().isGameActive());
        QVERIFY(m_window->text(QStringLiteral("headerText")).isEmpty());
    }

    void aHeldKeyActsOnOneViewOnly()
    {
        m_window->startGame();
        m_window->repeat(Qt::Key_Return, QStringLiteral("\r")); // the key that started
        QCOMPARE(faceUpCards(m_window->game()), 0);

        while (m_window->game().isGameActive()) {
            const std::size_t first = hiddenCard(m_window->game());
            moveTo(first);
            m_window->press(Qt::Key_Return);
            moveTo(otherCard(m_window->game(), first, true));
            m_window->press(Qt::Key_Return);
        }
        m_window->repeat(Qt::Key_Return, QStringLiteral("\r")); // the key that won
        QVERIFY(!m_window->game().isGameActive());
        m_window->repeat(Qt::Key_A, QStringLiteral("a"));
        QCOMPARE(m_window->game().playerName(), QStringLiteral("Ann"));
        m_window->type(QStringLiteral("a"));
        m_window->repeat(Qt::Key_A, QStringLiteral("a"));
        QCOMPARE(m_window->game().playerName(), QStringLiteral("Annaa"));
    }

    void clicksInAHurryActOnWhatTheGameHasComeTo()
    {
        // No event between the clicks: the screen has not followed yet.
        auto& checkbox = m_window->child<QCheckBox>(QStringLiteral("versusCheckbox"));
        m_window->type(QStringLiteral("Ann"));
        QCoreApplication::processEvents();
        pressAt(m_window->child<QPushButton>(QStringLiteral("startButton")));
        pressAt(checkbox);
        QVERIFY(m_window->game().isGameActive() && !m_window->game().isVersusMode());
        checkbox.click();
        QVERIFY(!m_window->game().isVersusMode() && !checkbox.isChecked());
        m_window->game().endGame();

        QCoreApplication::processEvents();
        m_window->click(checkbox);
        for (const char* const field : {"playerOneName", "playerTwoName"}) {
            m_window->click(m_window->child<QLineEdit>(QString::fromLatin1(field)));
            m_window->type(QStringLiteral("x"));
        }
        QCoreApplication::processEvents();
        m_window->click(m_window->child<QPushButton>(QStringLiteral("startVersusButton")));
        auto& end = m_window->child<QPushButton>(QStringLiteral("endButton"));
        pressAt(end);
        end.click();
        QCOMPARE(m_window->platform.readHighscoreFile().count("\"id\""), 1);
    }

    void aDoubleClickActsOnOneViewOnly()
    {
        m_window->type(QStringLiteral("Ann"));
        QCoreApplication::processEvents();
        auto& start = m_window->child<QPushButton>(QStringLiteral("startButton"));
        // A card lies there afterwards.
        const QPoint place = start.mapTo(&m_window->window(), QPoint(10, 5));
        QTest::mouseDClick(m_window->window().windowHandle(), Qt::LeftButton, {}, place);
        QCoreApplication::processEvents();
        QVERIFY(m_window->game().isGameActive());
        QCOMPARE(faceUpCards(m_window->game()), 0);
    }

    void aNewRoundKeepsTheFocusAtItsPlace()
    {
        m_window->platform.defaults->setInteger(SettingsKeys::AmountRounds, 2);
        m_window->startGame();
        for (int pair = 0; pair < 5; ++pair)
            findPair(m_window->game());
        const std::size_t first = hiddenCard(m_window->game());
        const std::size_t last = otherCard(m_window->game(), first, true);
        moveTo(first);
        m_window->press(Qt::Key_Space);
        moveTo(last);
        m_window->press(Qt::Key_Space);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->game().currentRound(), 2);
        QCOMPARE(faceUpCards(m_window->game()), 0);
        QCOMPARE(m_window->focused(), QStringLiteral("card%1").arg(last));
    }

    void tooFewPicturesAreToldOverTheForm_data()
    {
        QTest::addColumn<QString>("deck");
        QTest::addColumn<QList<QByteArray>>("messageKeys");

        QTest::newRow("bundle deck") << "Unknown" << QList<QByteArray>{"Paircade"};
        QTest::newRow("photos: one alert after the other")
            << "iPhoto" << QList<QByteArray>{"iphoto_access_denied", "Paircade"};
    }

    void tooFewPicturesAreToldOverTheForm()
    {
        QFETCH(QString, deck);
        QFETCH(QList<QByteArray>, messageKeys);
        m_window->platform.defaults->setString(SettingsKeys::CardDeck, deck);
        QStringList shown;
        const std::function<void(QMessageBox&)> look = [&](QMessageBox& box) {
            shown << box.text();
            QVERIFY(!m_window->game().isGameActive());
            QVERIFY(m_window->child<QLineEdit>(QStringLiteral("playerName")).isVisible());
            QVERIFY(!m_window->child<QWidget>(QStringLiteral("gameBoard")).isVisible());
            if (shown.size() < messageKeys.size())
                whenAlerted(look);
        };
        whenAlerted(look);
        m_window->startGame();
        QTRY_COMPARE(shown.size(), messageKeys.size());
        for (int i = 0; i < messageKeys.size(); ++i)
            QCOMPARE(shown[i], localizedText(messageKeys[i].constData()));
        QTRY_COMPARE(m_window->focused(), QStringLiteral("playerName"));
    }

private:
    /// Clicks without letting anything happen before or after.
    void pressAt(QWidget& widget)
    {
        QTest::mouseClick(m_window->window().windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(&m_window->window(), QPoint(5, 5)));
    }

    void moveTo(std::size_t position)
    {
        const auto columns = std::size_t(m_window->game().cardColumns());
        m_window->press(Qt::Key_Home, Qt::ControlModifier);
        for (std::size_t row = 0; row < position / columns; ++row)
            m_window->press(Qt::Key_Down);
        for (std::size_t column = 0; column < position % columns; ++column)
            m_window->press(Qt::Key_Right);
    }

    std::unique_ptr<GameWindow> m_window{};
};

QTEST_MAIN(WindowPlayTest)
#include "window_play_test.moc"
