// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The game's members, its start and the dealing of rounds.
#include "game/game_status.h"
#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "settings/settings_keys.h"
#include "support/play.h"
#include "support/test_platform.h"

#include <QSet>
#include <QTest>
#include <memory>
#include <optional>

using Member = MemoryGame::Member;

class MemoryGameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform = std::make_unique<TestPlatform>();
        m_platform->useResources(m_platform->home.path());
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 24);
        m_platform->notifications.observe(GameStatusChangedNotification, m_platform->defaults.get(),
                                          [this] { m_posts << gameIsActive(); });
        m_game = std::make_unique<MemoryGame>();
        connect(m_game.get(), &MemoryGame::changed, this,
                [this](Member member) { m_changes << member; });
    }

    void cleanup()
    {
        m_game.reset();
        m_platform.reset();
        m_changes.clear();
        m_posts.clear();
    }

    void aNewGameIsIdleAndEmpty()
    {
        QCOMPARE(m_game->headerText(), QStringLiteral("Enter your name"));
        QCOMPARE(m_game->currentRound(), 1);
        QCOMPARE(m_game->playerScores(), (std::array<std::int64_t, 2>{0, 0}));
        QVERIFY(m_game->cards().empty() && m_game->winnerText().isEmpty());
        QVERIFY(!m_game->isGameActive() && !m_game->gameCompleted() && !m_game->isVersusMode());
        QVERIFY(!m_game->timer() && !m_game->timerStarted() && !m_game->audioPlayer());
        QVERIFY(!m_platform->defaults->contains(SettingsKeys::GameIsActive));
    }

    void everyAssignmentIsAnnounced()
    {
        m_game->setPlayerName(QStringLiteral("Ann"));
        m_game->setPlayerName(QStringLiteral("Ann"));
        m_game->setIsVersusMode(false);
        QCOMPARE(m_changes,
                 (QList<Member>{Member::playerName, Member::playerName, Member::isVersusMode}));
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

    void aRefusedStartChangesOnlyTheHeader_data()
    {
        QTest::addColumn<bool>("isVersus");
        QTest::addColumn<QString>("header");

        QTest::newRow("one player without a name") << false << "Enter your name";
        QTest::newRow("two players, one without a name") << true << "Enter both names";
    }

    void aRefusedStartChangesOnlyTheHeader()
    {
        QFETCH(bool, isVersus);
        m_game->setPlayerName(QStringLiteral(" \n"));
        m_game->setPlayerOneName(QStringLiteral("Ann"));
        m_game->setIsVersusMode(isVersus);
        m_changes.clear();

        m_game->startNewGame();

        QTEST(m_game->headerText(), "header");
        QCOMPARE(m_changes, QList<Member>{Member::headerText});
        QVERIFY(!m_platform->defaults->contains(SettingsKeys::GameIsActive));
        QVERIFY(m_posts.isEmpty());
    }

    void aStartResetsEverythingInOrder()
    {
        m_game->setPlayerName(QStringLiteral("\t Ann "));
        m_changes.clear();
        m_game->startNewGame();

        const QList<Member> expected{
            Member::playerName,   Member::elapsedSeconds,     Member::failedAttempts,
            Member::currentRound, Member::gameCompleted,      Member::winnerText,
            Member::playerScores, Member::currentPlayerIndex, Member::isGameActive,
            Member::headerText,   Member::currentRound,       Member::headerText,
            Member::cards};
        QCOMPARE(m_changes, expected);
        QCOMPARE(m_posts, QList<int>{1});
        QCOMPARE(m_game->playerName(), QStringLiteral("Ann"));
        QCOMPARE(m_game->headerText(), QStringLiteral("Round 1 of 1"));
        QVERIFY(m_game->isGameActive() && !m_game->timer() && !m_game->timerStarted());
    }

    void versusNamesStayAsTyped()
    {
        m_game->setIsVersusMode(true);
        m_game->setPlayerOneName(QStringLiteral(" %2 "));
        m_game->setPlayerTwoName(QStringLiteral("Ben "));
        m_game->startNewGame();
        QCOMPARE(m_game->playerOneName(), QStringLiteral(" %2 "));
        QCOMPARE(m_game->playerTwoName(), QStringLiteral("Ben "));
        QVERIFY2(m_game->headerText().contains(QStringLiteral("%2")),
                 qPrintable(m_game->headerText()));
    }

    void aBoardFillsItsGridWithPairs_data()
    {
        QTest::addColumn<qint64>("amountCards");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("rows");

        QTest::newRow("0 counts as the first layout") << qint64{0} << 4 << 3;
        QTest::newRow("second") << qint64{2} << 4 << 4;
        QTest::newRow("third") << qint64{3} << 5 << 4;
        QTest::newRow("fourth") << qint64{4} << 6 << 4;
        QTest::newRow("fifth") << qint64{5} << 7 << 4;
        QTest::newRow("9 counts as the last layout") << qint64{9} << 8 << 5;
        QTest::newRow("beyond 32 bits") << qint64{4'294'967'297} << 8 << 5;
    }

    void aBoardFillsItsGridWithPairs()
    {
        QFETCH(qint64, amountCards);
        QFETCH(int, columns);
        QFETCH(int, rows);
        m_platform->defaults->setInteger(SettingsKeys::AmountCards, amountCards);
        start();

        QCOMPARE(m_game->cardColumns(), columns);
        QCOMPARE(m_game->cardRows(), rows);
        QCOMPARE(m_game->cards().size(), std::size_t(columns * rows));
        QSet<QUuid> ids;
        QHash<QUuid, QSet<QString>> names;
        for (const MemoryCard& card : m_game->cards()) {
            QVERIFY(!card.isFaceUp && !card.isMatched && !card.image.image.isNull());
            ids << card.id;
            names[card.pairID] << card.image.name;
        }
        QCOMPARE(ids.size(), columns * rows);
        QCOMPARE(names.size(), columns * rows / 2);
        QSet<QString> pictures;
        for (const QSet<QString>& ofPair : names) {
            QCOMPARE(ofPair.size(), 1);
            pictures += ofPair;
        }
        QCOMPARE(pictures.size(), names.size());
    }

    void anExactDeckIsDealtWhole()
    {
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 6);
        start();
        QCOMPARE(m_game->cards().size(), 12U);
    }

    void theOldBoardStaysUntilTheNewOneIsAssigned()
    {
        start();
        const QUuid oldCard = m_game->cards()[0].id;
        QList<bool> oldSeen;
        connect(m_game.get(), &MemoryGame::changed, m_game.get(),
                [&] { oldSeen << (m_game->cards()[0].id == oldCard); });
        m_game->loadRound(1);
        // The round, its header, then the board in one assignment.
        QCOMPARE(oldSeen, (QList<bool>{true, true, false}));
    }

    void tooFewPicturesStopTheGame_data()
    {
        QTest::addColumn<QString>("deck");
        QTest::addColumn<QString>("header");
        QTest::addColumn<QStringList>("earlierAlerts");

        const QStringList none;
        const QStringList denied{QStringLiteral("iphoto_access_denied")};
        QTest::newRow("one picture short") << "Short"
                                           << "not_enough_images_for_round" << none;
        QTest::newRow("no such deck") << "Unknown"
                                      << "not_enough_images_for_round" << none;
        QTest::newRow("no name") << "  "
                                 << "not_enough_images_for_round" << none;
        QTest::newRow("photos without access") << " iPhoto\n"
                                               << "iphoto_not_enough_images" << denied;
        QTest::newRow("album without access") << "iPhoto: Holidays"
                                              << "iphoto_not_enough_images_in_album" << denied;
        QTest::newRow("album without a title is a bundle deck")
            << "iPhoto: "
            << "not_enough_images_for_round" << none;
    }

    void tooFewPicturesStopTheGame()
    {
        QFETCH(QString, deck);
        QFETCH(QString, header);
        QFETCH(QStringList, earlierAlerts);
        makeDeck(m_platform->home.path(), QStringLiteral("Short"), 5);
        m_platform->defaults->setString(SettingsKeys::CardDeck, deck);
        QList<bool> activity;
        connect(m_game.get(), &MemoryGame::changed, m_game.get(), [&](Member member) {
            if (member == Member::isGameActive)
                activity << m_game->isGameActive();
        });
        start();

        const QString message = localizedText(qPrintable(header), {6, 1});
        QCOMPARE(m_game->headerText(), message);
        QCOMPARE(activity, (QList<bool>{true, false}));
        QCOMPARE(m_posts, (QList<int>{1, 0}));
        QVERIFY(m_game->cards().empty() && !m_game->gameCompleted());

        // The alerts wait for the end of the turn, and come one after the other.
        QVERIFY(m_platform->alertLog.shown.isEmpty());
        QStringList expected;
        for (const QString& key : earlierAlerts)
            expected << localizedText(key) + u'|' + localizedText(key + QStringLiteral("_info")) +
                            u'|' + localizedText("ok");
        expected << QStringLiteral("Paircade|") + message + QStringLiteral("|OK");
        QTRY_COMPARE(m_platform->alertLog.shown, expected);
    }

    void theHeaderCountsAtLeastOneRound()
    {
        m_platform->defaults->setInteger(SettingsKeys::AmountRounds, -3);
        m_game->updateHeaderForCurrentTurn();
        QCOMPARE(m_game->headerText(), QStringLiteral("Round 1 of 1"));
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
    void start()
    {
        m_game->setPlayerName(QStringLiteral("Ann"));
        m_game->startNewGame();
    }

    int gameIsActive() const
    {
        return int(m_platform->defaults->integer(SettingsKeys::GameIsActive));
    }

    std::unique_ptr<TestPlatform> m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
    QList<Member> m_changes{};
    QList<int> m_posts{};
};

QTEST_GUILESS_MAIN(MemoryGameTest)
#include "memory_game_test.moc"
