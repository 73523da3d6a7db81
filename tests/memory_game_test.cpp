// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk over the rules does not come by: real time, and files that fail.
#include "game/memory_game.h"
#include "highscores/highscore_file.h"
#include "settings/settings_keys.h"
#include "stage/play.h"
#include "stage/stage_platform.h"
#include "support/output_of.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

class MemoryGameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_game.reset(); // which ends before its platform
        m_platform.emplace();
        m_platform->useResources(m_platform->home.path());
        makeDeck(m_platform->home.path(), u"Cyberpunk"_s, 20);
        m_game.emplace();
        m_game->setPlayerName(u"Ann"_s);
    }

    void theFirstTapStartsTheClock()
    {
        m_game->startNewGame();
        QVERIFY(!m_game->timer());
        flip(*m_game, 0);
        const QTimer* const clock = m_game->timer();
        QVERIFY(clock);
        flip(*m_game, otherCard(*m_game, 0, true));
        QCOMPARE(m_game->timer(), clock);
        QCOMPARE(m_game->formattedElapsedTime(), u"00:00"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_game->elapsedSeconds(), 1, 1500);
        QCOMPARE(m_game->formattedElapsedTime(), u"00:01"_s);
    }

    void aMissTurnsBackAfterOneSecond()
    {
        m_game->startNewGame();
        miss(*m_game);
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(faceUpCards(*m_game), 2);
        QTRY_COMPARE_WITH_TIMEOUT(faceUpCards(*m_game), 0, 2000);
        QVERIFY2(waited.elapsed() >= 995 && waited.elapsed() < 1500,
                 qPrintable(QString::number(waited.elapsed())));
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
        flip(*m_game, 0);
        QTRY_VERIFY_WITH_TIMEOUT(!m_game->firstSelectedIndex(), 2000);
        QCOMPARE(faceUpCards(*m_game), 1);
    }

    void anAlertMayHaveNoSecondText()
    {
        m_game->showLocalizedAlert("no_such_key");
        m_game->showLocalizedAlert("enter_name", "unknown_player");
        QVERIFY(m_platform->alertLog.shown.isEmpty());
        QTRY_COMPARE(m_platform->alertLog.shown,
                     (QStringList{u"no_such_key||OK"_s, u"Enter your name|Unknown|OK"_s}));
    }

    void aResultThatCannotBeWrittenShowsUntilTheNextReload()
    {
        blockHighscoreFile();
        QList<std::size_t> listSizes;
        connect(&*m_game, &MemoryGame::changed, &*m_game, [&](MemoryGame::Member member) {
            if (member == MemoryGame::Member::bestTimeScores)
                listSizes << m_game->bestTimeScores().size();
        });
        play();
        // The append alone leaves the record in the lists; the reload takes it away.
        QCOMPARE(listSizes, (QList<std::size_t>{1, 0}));
        QVERIFY(m_game->gameCompleted() && !m_game->winnerText().isEmpty());
    }

    void aFailedRestoreCanBeTriedAgain()
    {
        play();
        m_game->resetHighscores();
        blockHighscoreFile();
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
        QCOMPARE(decodeHighscores(m_platform->readHighscoreFile())->size(), 1U);
    }

    void aFailedResetIsLoggedAndKeepsNothing()
    {
        play();
        QVERIFY(QFile::remove(m_platform->highscoreFile()));
        blockHighscoreFile();
        const QByteArray log = outputOf([this] { m_game->resetHighscores(); });
        QVERIFY2(log.startsWith("Fehler beim Zurücksetzen der Highscores: "), log.constData());
        QCOMPARE(log.count('\n'), 1);
        QVERIFY(m_game->bestTimeScores().empty() && m_game->bestFailureScores().empty());
        QVERIFY(QFile::exists(m_platform->highscoreFile()) && !m_game->canRestoreHighscores());
    }

    void aResetKeepsNothingThatItCouldNotRead()
    {
        for (const QByteArray contents : {"{", "[]"}) {
            m_platform->writeHighscoreFile(contents);
            m_game->resetHighscores();
            QVERIFY2(!QFile::exists(m_platform->highscoreFile()), contents);
            QVERIFY2(!m_game->canRestoreHighscores(), contents);
            const QByteArray logWithoutAFile = outputOf([this] { m_game->resetHighscores(); });
            QCOMPARE(logWithoutAFile, QByteArray());
        }
    }

private:
    /// Plays a game to its end.
    void play()
    {
        m_game->startNewGame();
        while (m_game->isGameActive())
            findPair(*m_game);
    }

    /// A folder in the file's place can be neither read nor replaced.
    void blockHighscoreFile() { QDir().mkpath(m_platform->highscoreFile() + u"/inside"_s); }

    std::optional<StagePlatform> m_platform{};
    std::optional<MemoryGame> m_game{};
};

QTEST_GUILESS_MAIN(MemoryGameTest)
#include "memory_game_test.moc"
