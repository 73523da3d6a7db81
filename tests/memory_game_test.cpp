// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk over the rules does not come by: files that fail.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "stage/files.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/broken_world.h"
#include "support/output_of.h"

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

    void aFailedResetOrRestoreCanBeTriedAgainAndAFailedResultIsNotKept()
    {
        play();
        const QString file = m_platform.highscoreFile();
        const QString folder = QFileInfo(file).path();
        writeFile(folder + u"/highscores.html"_s, "page");
        forbid(folder, 0555);
        std::optional<AsNobody> nobody(m_platform.home.path());
        QCOMPARE(outputOf([this] { m_game->resetHighscores(); }),
                 "Fehler beim Zurücksetzen der Highscores: Permission denied\n");
        nobody.reset();
        forbid(folder, 0755);
        QVERIFY(m_game->bestTimeScores().empty() && !m_game->canRestoreHighscores());
        m_game->restoreHighscores();
        QCOMPARE(m_game->bestTimeScores().size(), 1U); // not twice
        m_game->resetHighscores();
        QCOMPARE(QDir(folder).entryList(QDir::Files), {u"highscores.html"_s});
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
