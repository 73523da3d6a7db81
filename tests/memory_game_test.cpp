// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk over the rules does not come by: odd names, the order of announcements.
#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "support/play.h"
#include "support/test_platform.h"

#include <QTest>
#include <memory>

class MemoryGameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform = std::make_unique<TestPlatform>();
        m_platform->useResources(m_platform->home.path());
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 24);
        m_game = std::make_unique<MemoryGame>();
    }

    void cleanup()
    {
        m_game.reset();
        m_platform.reset();
    }

    void namesAreTrimmedAtTheirEnds_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("shownFirst");
        QTest::addColumn<QString>("shownSecond");
        QTest::addColumn<bool>("canStart");

        QTest::newRow("nothing typed") << ""
                                       << ""
                                       << "Player 1"
                                       << "Player 2" << false;
        QTest::newRow("blanks do not count") << "  Ann "
                                             << " \t"
                                             << "Ann"
                                             << "Player 2" << false;
        QTest::newRow("no-break space and line separator are blanks")
            << QStringLiteral("\u00A0\u3000") << QStringLiteral("\u2028Ben\u0085") << "Player 1"
            << "Ben" << false;
        QTest::newRow("inner blanks stay") << "Ann  B"
                                           << "%1"
                                           << "Ann  B"
                                           << "%1" << true;
    }

    void namesAreTrimmedAtTheirEnds()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, canStart);
        m_game->setPlayerOneName(first);
        m_game->setPlayerTwoName(second);
        m_game->setPlayerName(first);
        QTEST(m_game->playerNames()[0], "shownFirst");
        QTEST(m_game->playerNames()[1], "shownSecond");
        QCOMPARE(m_game->canStartVersusGame(), canStart);
        QCOMPARE(m_game->canStartGame(), m_game->playerNames()[0] != QStringLiteral("Player 1"));
    }

    void theOldBoardStaysUntilTheNewOneIsAssigned()
    {
        m_game->setPlayerName(QStringLiteral("Ann"));
        m_game->startNewGame();
        const QUuid oldCard = m_game->cards()[0].id;
        QList<bool> oldSeen;
        connect(m_game.get(), &MemoryGame::changed, m_game.get(),
                [&] { oldSeen << (m_game->cards()[0].id == oldCard); });
        m_game->loadRound(1);
        // The round, its header, then the board in one assignment.
        QCOMPARE(oldSeen, (QList<bool>{true, true, false}));
    }

    void anAlertMayHaveNoSecondText()
    {
        m_game->showLocalizedAlert("no_such_key");
        m_game->showLocalizedAlert("enter_name", "unknown_player");
        QVERIFY(m_platform->alertLog.shown.isEmpty());
        QTRY_COMPARE(m_platform->alertLog.shown.size(), 2);
        QCOMPARE(m_platform->alertLog.shown[0],
                 QStringLiteral("no_such_key||") + localizedText("ok"));
        QCOMPARE(m_platform->alertLog.shown[1],
                 QStringLiteral("Enter your name|Unknown|") + localizedText("ok"));
    }

private:
    std::unique_ptr<TestPlatform> m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
};

QTEST_GUILESS_MAIN(MemoryGameTest)
#include "memory_game_test.moc"
