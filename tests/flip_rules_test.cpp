// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What takes real time in a round; its rules are walked over in rules_walk_test.
#include "game/memory_game.h"
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

private:
    std::unique_ptr<TestPlatform> m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
};

QTEST_GUILESS_MAIN(FlipRulesTest)
#include "flip_rules_test.moc"
