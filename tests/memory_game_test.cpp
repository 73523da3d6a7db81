// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk over the rules does not come by: real time, and files that fail.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "stage/play.h"
#include "stage/stage_platform.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

class MemoryGameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform.useResources(m_platform.home.path());
        makeDeck(m_platform.home.path(), u"Cyberpunk"_s, 6);
        m_game.emplace();
        m_game->setPlayerName(u"Ann"_s);
    }

    void theClockAndAMissTakeOneSecond()
    {
        m_game->startNewGame();
        miss(*m_game);
        QElapsedTimer waited;
        waited.start();
        QTRY_COMPARE_WITH_TIMEOUT(faceUpCards(*m_game), 0, 2000);
        QVERIFY2(waited.elapsed() >= 995 && waited.elapsed() < 1500,
                 qPrintable(QString::number(waited.elapsed())));
        QTRY_COMPARE_WITH_TIMEOUT(m_game->elapsedSeconds(), 1, 500);
    }

    void aFailedRestoreCanBeTriedAgainAndAFailedResultIsNotKept()
    {
        play();
        const QString file = m_platform.highscoreFile();
        m_game->resetHighscores();
        // A folder in the file's place can be neither read nor replaced.
        QVERIFY(QDir().mkpath(file + u"/inside"_s));
        m_game->restoreHighscores();
        QVERIFY(m_game->canRestoreHighscores() && m_game->bestTimeScores().empty());
        QVERIFY(QDir(file).removeRecursively());
        m_game->restoreHighscores();
        QCOMPARE(decodeHighscores(m_platform.readHighscoreFile())->size(), 1U);

        // What could not be read goes without a way back.
        m_platform.writeHighscoreFile("{");
        m_game->resetHighscores();
        QVERIFY(!QFile::exists(file) && !m_game->canRestoreHighscores());

        // A result that cannot be written shows until the next reload, which comes at once.
        QVERIFY(QDir().mkpath(file + u"/inside"_s));
        QList<std::size_t> shown;
        connect(&*m_game, &MemoryGame::changed, this, [&](MemoryGame::Member member) {
            if (member == MemoryGame::Member::bestTimeScores)
                shown << m_game->bestTimeScores().size();
        });
        play();
        m_game.reset();
        QCOMPARE(shown, (QList<std::size_t>{1, 0}));
    }

private:
    void play()
    {
        m_game->startNewGame();
        while (m_game->isGameActive())
            findPair(*m_game);
    }

    StagePlatform m_platform{};
    std::optional<MemoryGame> m_game{};
};

QTEST_GUILESS_MAIN(MemoryGameTest)
#include "memory_game_test.moc"
