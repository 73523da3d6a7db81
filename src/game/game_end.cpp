// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of a game: won to its last pair, or ended by the player.
#include "game/game_status.h"
#include "game/memory_game.h"
#include "platform/localized_text.h"

void MemoryGame::finishSoloGame()
{
    markFinished();
    storeCurrentResult();
    reloadHighscoresForCurrentSettings();
    m_winnerText = localizedText("singleplayer_result",
                                 {soloPlayerName(), formattedElapsedTime(), failedAttempts()});
    m_headerText = winnerText();
}

void MemoryGame::finishVersusGame()
{
    markFinished();
    storeVersusResult();
    reloadHighscoresForCurrentSettings();
    const auto [firstName, secondName] = playerNames();
    const auto [firstScore, secondScore] = playerScores();
    // The winner's score comes before the loser's.
    if (firstScore > secondScore)
        m_winnerText = localizedText("player_wins_score", {firstName, firstScore, secondScore});
    else if (secondScore > firstScore)
        m_winnerText = localizedText("player_wins_score", {secondName, secondScore, firstScore});
    else
        m_winnerText = localizedText("draw_score", {firstScore, secondScore});
    m_headerText = winnerText();
}

void MemoryGame::endGame()
{
    withdrawTurnBack();
    stopTimer();
    if (isVersusMode())
        storeVersusResult();
    reloadHighscoresForCurrentSettings();
    m_gameCompleted = false;
    m_winnerText = QString();
    m_headerText = QString();
    clearAttempt();
    m_isGameActive = false;
    publishGameStatus(false);
}

void MemoryGame::markFinished()
{
    m_gameCompleted = true;
    m_isGameActive = false;
    publishGameStatus(false);
    stopTimer();
}
