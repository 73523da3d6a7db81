// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What taps do, from the first card to the end of a round.
#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "support/play.h"
#include "support/test_platform.h"

#include <QElapsedTimer>
#include <QTest>
#include <memory>

class FlipRulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform = std::make_unique<TestPlatform>();
        m_platform->useResources(m_platform->home.path());
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 20);
        m_game = std::make_unique<MemoryGame>();
        m_game->setPlayerName(QStringLiteral("Ann"));
        m_game->setPlayerOneName(QStringLiteral("Ann"));
        m_game->setPlayerTwoName(QStringLiteral("Ben"));
    }

    void cleanup()
    {
        m_game.reset();
        m_platform.reset();
    }

    void theFirstTapStartsTheClock()
    {
        m_game->startNewGame();
        QVERIFY(!m_game->timer());
        flip(*m_game, 0);
        QVERIFY(m_game->timer() && m_game->timerStarted());
        const QTimer* const clock = m_game->timer();
        flip(*m_game, otherCard(*m_game, 0, true));
        QCOMPARE(m_game->timer(), clock);

        QCOMPARE(m_game->formattedElapsedTime(), QStringLiteral("00:00"));
        QTRY_COMPARE_WITH_TIMEOUT(m_game->elapsedSeconds(), 1, 1500);
        QCOMPARE(m_game->formattedElapsedTime(), QStringLiteral("00:01"));

        m_game->startNewGame();
        QVERIFY(!m_game->timer() && !m_game->timerStarted());
        QCOMPARE(m_game->elapsedSeconds(), 0);
    }

    void tapsThatTheRulesForbidChangeNothing()
    {
        flipAndExpectNothing(MemoryCard{});
        m_game->startNewGame();
        flipAndExpectNothing(MemoryCard{}); // lies on no board

        const std::size_t first = hiddenCard(*m_game);
        flip(*m_game, first);
        flipAndExpectNothing(m_game->cards()[first]); // the same card twice
        QCOMPARE(m_game->failedAttempts(), 0);

        flip(*m_game, otherCard(*m_game, first, true));
        flipAndExpectNothing(m_game->cards()[first]); // a found card

        miss(*m_game);
        const std::size_t third = hiddenCard(*m_game);
        flipAndExpectNothing(m_game->cards()[third]); // while a miss lies open

        m_game->endGame();
        flipAndExpectNothing(m_game->cards()[third]); // on the board of an ended game
    }

    void aTapFindsItsCardByIdAlone()
    {
        m_game->startNewGame();
        MemoryCard stale = m_game->cards()[5];
        stale.isFaceUp = true;
        m_game->flipCard(stale);
        QVERIFY(m_game->cards()[5].isFaceUp);
        QCOMPARE(m_game->firstSelectedIndex(), std::optional<std::size_t>(5));
    }

    void aMissTurnsBackAfterOneSecond()
    {
        m_game->startNewGame();
        const QString header = m_game->headerText();
        miss(*m_game);
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(m_game->failedAttempts(), 1);
        QCOMPARE(faceUpCards(*m_game), 2);
        QVERIFY(m_game->isCheckingPair() && m_game->firstSelectedIndex());

        QTRY_COMPARE_WITH_TIMEOUT(faceUpCards(*m_game), 0, 2000);
        QVERIFY2(waited.elapsed() >= 995 && waited.elapsed() < 1500,
                 qPrintable(QString::number(waited.elapsed())));
        QVERIFY(!m_game->isCheckingPair() && !m_game->firstSelectedIndex());
        QCOMPARE(m_game->headerText(), header);
    }

    void versusTurnsPassAfterAMissOnly()
    {
        m_game->setIsVersusMode(true);
        m_game->startNewGame();
        QCOMPARE(m_game->headerText(), localizedText("player_turn", {QStringLiteral("Ann")}));

        const std::size_t first = hiddenCard(*m_game);
        flip(*m_game, first);
        QCOMPARE(m_game->headerText(),
                 localizedText("player_choose_second_card", {QStringLiteral("Ann")}));
        flip(*m_game, otherCard(*m_game, first, true));
        QCOMPARE(m_game->headerText(), localizedText("player_found_pair", {QStringLiteral("Ann")}));
        QCOMPARE(m_game->playerScores(), (std::array<std::int64_t, 2>{1, 0}));
        QCOMPARE(m_game->currentPlayerIndex(), 0);

        miss(*m_game);
        QCOMPARE(m_game->currentPlayerIndex(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(m_game->currentPlayerIndex(), 1, 2000);
        QCOMPARE(m_game->headerText(), localizedText("player_turn", {QStringLiteral("Ben")}));

        findPair(*m_game);
        QCOMPARE(m_game->playerScores(), (std::array<std::int64_t, 2>{1, 1}));
        miss(*m_game);
        QTRY_COMPARE_WITH_TIMEOUT(m_game->currentPlayerIndex(), 0, 2000);
        QCOMPARE(m_game->failedAttempts(), 2);
    }

    void aPendingTurnBackIsWithdrawn_data()
    {
        QTest::addColumn<bool>("restarts");
        QTest::newRow("when the game is ended") << false;
        QTest::newRow("when another game starts") << true;
    }

    void aPendingTurnBackIsWithdrawn()
    {
        QFETCH(bool, restarts);
        m_game->startNewGame();
        miss(*m_game);
        if (restarts)
            m_game->startNewGame();
        else
            m_game->endGame();
        const std::size_t open = restarts ? 0 : 2;
        if (restarts)
            flip(*m_game, 0);
        QTest::qWait(1300);
        QCOMPARE(faceUpCards(*m_game), std::ptrdiff_t(restarts ? 1 : open));
        QCOMPARE(m_game->firstSelectedIndex().has_value(), restarts);
    }

    void aTurnBackSkipsPositionsOutsideTheBoard()
    {
        m_platform->defaults->setInteger(SettingsKeys::AmountCards, 6);
        m_game->startNewGame();
        flip(*m_game, 39);
        flip(*m_game, otherCard(*m_game, 39, false, 20));
        QVERIFY(m_game->isCheckingPair());
        m_platform->defaults->setInteger(SettingsKeys::AmountCards, 1);
        m_game->loadRound(1);
        QCOMPARE(m_game->cards().size(), 12U);
        flip(*m_game, 0);
        QTRY_VERIFY_WITH_TIMEOUT(!m_game->firstSelectedIndex(), 2000);
        QCOMPARE(faceUpCards(*m_game), 1);
    }

    void roundsFollowEachOtherAndCountersRunOn_data()
    {
        QTest::addColumn<bool>("isVersus");
        QTest::newRow("one player") << false;
        QTest::newRow("two players") << true;
    }

    void roundsFollowEachOtherAndCountersRunOn()
    {
        QFETCH(bool, isVersus);
        m_platform->defaults->setInteger(SettingsKeys::AmountRounds, 3);
        m_game->setIsVersusMode(isVersus);
        m_game->startNewGame();
        miss(*m_game);
        QTRY_VERIFY_WITH_TIMEOUT(!m_game->isCheckingPair(), 2000);
        const QTimer* const clock = m_game->timer();

        for (std::int64_t round = 1; round <= 3; ++round) {
            QCOMPARE(m_game->currentRound(), round);
            QCOMPARE(m_game->cards().size(), 12U);
            QCOMPARE(faceUpCards(*m_game), 0);
            QCOMPARE(m_game->timer(), clock);
            if (round > 1)
                QCOMPARE(m_game->headerText(),
                         isVersus
                             ? localizedText("player_starts_round", {QStringLiteral("Ben"), round})
                             : localizedText("round_of_rounds", {round, 3}));
            for (int pair = 0; pair < 6; ++pair)
                findPair(*m_game);
        }
        QVERIFY(m_game->gameCompleted() && !m_game->isGameActive() && !m_game->timer());
        QCOMPARE(m_game->currentRound(), 3);
        QCOMPARE(m_game->failedAttempts(), 1);
        if (isVersus)
            QCOMPARE(m_game->playerScores(), (std::array<std::int64_t, 2>{0, 18}));
    }

    void aRoundThatCannotBeDealtStopsTheGameButNotTheClock()
    {
        m_platform->defaults->setInteger(SettingsKeys::AmountRounds, 2);
        m_game->startNewGame();
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 5);
        for (int pair = 0; pair < 6; ++pair)
            findPair(*m_game);

        QVERIFY(!m_game->isGameActive() && !m_game->gameCompleted() && m_game->cards().empty());
        QCOMPARE(m_game->headerText(), QStringLiteral("Round 2 of 2"));
        QCOMPARE(m_platform->defaults->integer(SettingsKeys::GameIsActive), 0);
        QTRY_COMPARE(m_platform->alertLog.shown.size(), 1);
        QVERIFY(m_platform->alertLog.shown[0].contains(
            localizedText("not_enough_images_for_round", {6, 2})));
        QVERIFY(m_platform->readHighscoreFile().isEmpty());

        const std::int64_t before = m_game->elapsedSeconds();
        QTRY_VERIFY_WITH_TIMEOUT(m_game->elapsedSeconds() > before, 1500);
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 6);
        m_game->startNewGame();
        QVERIFY(!m_game->timer() && m_game->elapsedSeconds() == 0);
    }

private:
    void flipAndExpectNothing(const MemoryCard& card)
    {
        int changes = 0;
        const auto watch =
            connect(m_game.get(), &MemoryGame::changed, m_game.get(), [&changes] { ++changes; });
        m_game->flipCard(card);
        disconnect(watch);
        QCOMPARE(changes, 0);
    }

    std::unique_ptr<TestPlatform> m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
};

QTEST_GUILESS_MAIN(FlipRulesTest)
#include "flip_rules_test.moc"
