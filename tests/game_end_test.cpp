// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of a game and the results that they leave.
#include "game/game_status.h"
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
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
