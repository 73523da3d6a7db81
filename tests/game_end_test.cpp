// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of a game and the results that they leave.
#include "game/game_status.h"
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "platform/localized_text.h"
#include "platform/user_folders.h"
#include "settings/settings_keys.h"
#include "support/output_of.h"
#include "support/play.h"
#include "support/test_platform.h"

#include <QFile>
#include <QTest>
#include <memory>

using Member = MemoryGame::Member;

class GameEndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform = std::make_unique<TestPlatform>();
        m_platform->useResources(m_platform->home.path());
        makeDeck(m_platform->home.path(), QStringLiteral("Cyberpunk"), 8);
        m_game = std::make_unique<MemoryGame>();
        m_game->setPlayerName(QStringLiteral("Ann"));
        m_game->setPlayerOneName(QStringLiteral(" Ann"));
        m_game->setPlayerTwoName(QStringLiteral("Ben "));
        m_platform->notifications.observe(GameStatusChangedNotification, m_game.get(), [this] {
            ++m_posts;
            m_statusAtPost = m_platform->defaults->integer(SettingsKeys::GameIsActive);
        });
    }

    void cleanup()
    {
        m_game.reset();
        m_platform.reset();
    }

    void aWonGameLeavesItsResult()
    {
        m_game->startNewGame();
        miss(*m_game);
        QTRY_VERIFY_WITH_TIMEOUT(!m_game->isCheckingPair(), 2000);
        m_posts = 0;
        playToTheEnd();

        QVERIFY(m_game->gameCompleted() && !m_game->isGameActive());
        QVERIFY(!m_game->timer() && m_game->timerStarted());
        QCOMPARE(m_posts, 1);
        QCOMPARE(m_statusAtPost, 0);
        const QString time = m_game->formattedElapsedTime();
        QCOMPARE(m_game->winnerText(),
                 QStringLiteral("Well done, Ann! %1 · Failed attempts: 1").arg(time));
        QCOMPARE(m_game->headerText(), m_game->winnerText());

        const HighscoreEntries stored = storedEntries();
        QCOMPARE(stored.size(), 1U);
        QCOMPARE(stored[0].gameMode, QStringLiteral("solo"));
        QCOMPARE(stored[0].playerName, QStringLiteral("Ann"));
        QCOMPARE(stored[0].failedAttempts, 1);
        QCOMPARE(stored[0].elapsedSeconds, m_game->elapsedSeconds());
        QVERIFY(!stored[0].secondPlayerName && !stored[0].firstPlayerScore);
        QCOMPARE(m_game->bestTimeScores().size(), 1U);
        QCOMPARE(m_game->bestFailureScores()[0].id, stored[0].id);
    }

    void theWinnersScoreComesFirst_data()
    {
        QTest::addColumn<int>("pairsBeforeTheMiss");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("winner");

        QTest::newRow("first player wins")
            << 4 << localizedTextNow("player_wins_score", {QStringLiteral("Ann"), 4, 2}) << "Ann";
        QTest::newRow("second player wins")
            << 1 << localizedTextNow("player_wins_score", {QStringLiteral("Ben"), 5, 1}) << "Ben";
        QTest::newRow("draw") << 3 << localizedTextNow("draw_score", {3, 3}) << QString();
    }

    void theWinnersScoreComesFirst()
    {
        QFETCH(int, pairsBeforeTheMiss);
        QFETCH(QString, winner);
        m_game->setIsVersusMode(true);
        m_game->startNewGame();
        for (int pair = 0; pair < pairsBeforeTheMiss; ++pair)
            findPair(*m_game);
        miss(*m_game);
        QTRY_VERIFY_WITH_TIMEOUT(!m_game->isCheckingPair(), 2000);
        playToTheEnd();

        QTEST(m_game->winnerText(), "text");
        QCOMPARE(m_game->headerText(), m_game->winnerText());
        const HighscoreEntries stored = storedEntries();
        QCOMPARE(stored.size(), 1U);
        QCOMPARE(stored[0].winnerName.value_or(QString()), winner);
        QCOMPARE(stored[0].winnerName.has_value(), !winner.isEmpty());
        QCOMPARE(stored[0].firstPlayerScore.value(), pairsBeforeTheMiss);
        QCOMPARE(stored[0].failedAttempts, 1);
        QCOMPARE(m_game->bestVersusScores().size(), 1U);
        QVERIFY(m_game->bestTimeScores().empty());
    }

    void onlyAVersusGameEndedEarlyIsStored_data()
    {
        QTest::addColumn<bool>("isVersus");
        QTest::newRow("one player") << false;
        QTest::newRow("two players") << true;
    }

    void onlyAVersusGameEndedEarlyIsStored()
    {
        QFETCH(bool, isVersus);
        m_game->setIsVersusMode(isVersus);
        m_game->startNewGame();
        findPair(*m_game);
        flip(*m_game, hiddenCard(*m_game));
        const std::size_t boardSize = m_game->cards().size();
        m_posts = 0;
        m_game->endGame();

        QVERIFY(!m_game->gameCompleted() && !m_game->isGameActive() && !m_game->timer());
        QVERIFY(m_game->headerText().isEmpty() && m_game->winnerText().isEmpty());
        QVERIFY(!m_game->firstSelectedIndex());
        QCOMPARE(m_game->cards().size(), boardSize);
        QCOMPARE(m_posts, 1);
        QCOMPARE(m_statusAtPost, 0);
        QCOMPARE(storedEntries().size(), isVersus ? 1U : 0U);
        if (isVersus)
            QCOMPARE(storedEntries()[0].winnerName, std::optional(QStringLiteral("Ann")));
    }

    void settingsOutOfRangeAreStoredAsTheyWerePlayed()
    {
        m_platform->defaults->setInteger(SettingsKeys::AmountCards, 0);
        m_platform->defaults->setInteger(SettingsKeys::AmountRounds, -3);
        m_game->startNewGame();
        playToTheEnd();
        QCOMPARE(storedEntries()[0].amountCards, 1);
        QCOMPARE(storedEntries()[0].amountRounds, 1);
        QCOMPARE(m_game->bestTimeScores().size(), 1U);
    }

    void aNamelessWinnerIsCalledUnknown()
    {
        m_game->startNewGame();
        m_game->setPlayerName(QStringLiteral(" "));
        m_game->finishSoloGame();
        QCOMPARE(storedEntries()[0].playerName, QStringLiteral("Unknown"));
        QVERIFY(m_game->winnerText().contains(QStringLiteral("Unknown")));
    }

    void anUnreadableFileIsReplacedByTheNextResult()
    {
        m_platform->writeHighscoreFile("[{\"id\": 1}]");
        m_game->startNewGame();
        playToTheEnd();
        QCOMPARE(storedEntries().size(), 1U);
    }

    void aResultThatCannotBeWrittenShowsUntilTheNextReload()
    {
        // A folder in the file's place can be neither read nor replaced.
        QVERIFY(QDir().mkpath(m_platform->highscoreFile() + QStringLiteral("/inside")));
        QList<std::size_t> listSizes;
        connect(m_game.get(), &MemoryGame::changed, m_game.get(), [&](Member member) {
            if (member == Member::bestTimeScores)
                listSizes << m_game->bestTimeScores().size();
        });
        m_game->startNewGame();
        playToTheEnd();
        // The append alone leaves the record in the lists; the reload takes it away.
        QCOMPARE(listSizes, (QList<std::size_t>{1, 0}));
        QVERIFY(m_game->gameCompleted() && !m_game->winnerText().isEmpty());
    }

    void aModeChangeLeavesTheListsToTheNextReload()
    {
        m_game->startNewGame();
        playToTheEnd();
        m_game->setIsVersusMode(true);
        QCOMPARE(m_game->bestTimeScores().size(), 1U);
        m_game->reloadHighscoresForCurrentSettings();
        QVERIFY(m_game->bestTimeScores().empty());
    }

    void aResetCanBeMended()
    {
        m_game->startNewGame();
        playToTheEnd();
        const QByteArray before = m_platform->readHighscoreFile();
        QVERIFY(!m_game->canRestoreHighscores());

        m_game->resetHighscores();
        QVERIFY(m_game->bestTimeScores().empty() && m_game->bestFailureScores().empty());
        QVERIFY(!QFile::exists(m_platform->highscoreFile()));
        m_game->reloadHighscoresForCurrentSettings();
        QVERIFY(m_game->bestTimeScores().empty());
        QVERIFY(m_game->canRestoreHighscores());

        m_game->startNewGame();
        playToTheEnd();
        const QUuid later = storedEntries()[0].id;
        m_game->resetHighscores();
        m_game->startNewGame();
        playToTheEnd();
        m_game->restoreHighscores();
        // What was removed first comes first, then what is there.
        QCOMPARE(storedEntries().size(), 3U);
        QVERIFY(before.contains(
            storedEntries()[0].id.toString(QUuid::WithoutBraces).toUpper().toLatin1()));
        QCOMPARE(storedEntries()[1].id, later);
        QCOMPARE(m_game->bestTimeScores().size(), 3U);
        QVERIFY(!m_game->canRestoreHighscores());
    }

    void aFailedRestoreCanBeTriedAgain()
    {
        m_game->startNewGame();
        playToTheEnd();
        m_game->resetHighscores();
        QVERIFY(QDir().mkpath(m_platform->highscoreFile() + QStringLiteral("/inside")));
        m_game->restoreHighscores();
        QVERIFY(m_game->canRestoreHighscores() && m_game->bestTimeScores().empty());
        QVERIFY(QDir(m_platform->highscoreFile()).removeRecursively());
        // Results that memory does not suffice for are not replaced either.
        constexpr qint64 tooLong = qint64{1} << 42;
        m_platform->writeHighscoreFile("[");
        QVERIFY(QFile::resize(m_platform->highscoreFile(), tooLong));
        m_game->restoreHighscores();
        QCOMPARE(QFileInfo(m_platform->highscoreFile()).size(), tooLong);
        QVERIFY(QFile::remove(m_platform->highscoreFile()));
        m_game->restoreHighscores();
        QCOMPARE(storedEntries().size(), 1U);
    }

    void aFailedResetIsLoggedAndKeepsNothing()
    {
        m_game->startNewGame();
        playToTheEnd();
        QVERIFY(QFile::remove(m_platform->highscoreFile()));
        QVERIFY(QDir().mkpath(m_platform->highscoreFile() + QStringLiteral("/inside")));
        const QByteArray log = outputOf([this] { m_game->resetHighscores(); });
        QVERIFY2(log.startsWith("Fehler beim Zurücksetzen der Highscores: "), log.constData());
        QCOMPARE(log.count('\n'), 1);
        QVERIFY(m_game->bestTimeScores().empty() && m_game->bestFailureScores().empty());
        QVERIFY(QFile::exists(m_platform->highscoreFile()));
        QVERIFY(!m_game->canRestoreHighscores());

        QVERIFY(QDir(m_platform->highscoreFile()).removeRecursively());
        QCOMPARE(outputOf([this] { m_game->resetHighscores(); }), QByteArray());
    }

    void theSettingsOfTheStartHoldToTheEnd()
    {
        m_game->startNewGame();
        {
            UserDefaults otherProgram(settingsFile());
            otherProgram.setInteger(SettingsKeys::AmountCards, 6);
            otherProgram.setInteger(SettingsKeys::AmountRounds, 10);
        }
        playToTheEnd();
        QCOMPARE(storedEntries()[0].amountCards, 1);
        QCOMPARE(storedEntries()[0].amountRounds, 1);
        m_game->startNewGame();
        QCOMPARE(m_game->totalRounds(), 10);
    }

    void aResetKeepsNothingThatItCouldNotRead_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("garbage") << QByteArray("{");
        QTest::newRow("no record") << QByteArray("[]");
    }

    void aResetKeepsNothingThatItCouldNotRead()
    {
        QFETCH(QByteArray, contents);
        m_platform->writeHighscoreFile(contents);
        m_game->resetHighscores();
        QVERIFY(!QFile::exists(m_platform->highscoreFile()));
        QVERIFY(!m_game->canRestoreHighscores());
        m_game->resetHighscores(); // nothing there: nothing happens
    }

private:
    /// Texts for a data table, which is filled while a platform is in place.
    static QString localizedTextNow(const char* key,
                                    std::initializer_list<FormatArgument> arguments)
    {
        const TestPlatform texts;
        return localizedText(key, arguments);
    }

    void playToTheEnd()
    {
        while (m_game->isGameActive())
            findPair(*m_game);
    }

    HighscoreEntries storedEntries() const
    {
        return decodeHighscores(m_platform->readHighscoreFile()).value_or(HighscoreEntries());
    }

    std::unique_ptr<TestPlatform> m_platform{};
    std::unique_ptr<MemoryGame> m_game{};
    int m_posts = 0;
    std::int64_t m_statusAtPost = -1;
};

QTEST_GUILESS_MAIN(GameEndTest)
#include "game_end_test.moc"
