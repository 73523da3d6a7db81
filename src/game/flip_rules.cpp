// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a tap on a card does, up to the end of a round.
#include "game/memory_game.h"
#include "platform/localized_text.h"
#include "platform/platform.h"

#include <algorithm>

void MemoryGame::flipCard(const MemoryCard& card)
{
    if (!isGameActive() || isCheckingPair())
        return;
    const auto tapped = std::ranges::find(cards(), card.id, &MemoryCard::id);
    if (tapped == cards().end() || tapped->isFaceUp || tapped->isMatched)
        return;
    const auto position = static_cast<std::size_t>(tapped - cards().begin());

    // Time counts from the first card turned, not from the start.
    if (!m_timerStarted) {
        m_timerStarted = true;
        startTimer();
    }
    playCardFlipSound();
    setFaceUp(position, true);

    if (!m_firstSelectedIndex) {
        m_firstSelectedIndex = position;
        if (isVersusMode())
            m_headerText = localizedText("player_choose_second_card", {playerToMove()});
        return;
    }

    const std::size_t first = *m_firstSelectedIndex;
    m_isCheckingPair = true;
    if (cards()[first].pairID == cards()[position].pairID)
        settlePair(first, position);
    else
        settleMiss(first, position);
}

void MemoryGame::settlePair(std::size_t first, std::size_t second)
{
    playCardDoneSound();
    setMatched(first);
    setMatched(second);
    if (isVersusMode()) {
        m_playerScores.modify(
            [this](auto& scores) { ++scores[static_cast<std::size_t>(currentPlayerIndex())]; });
        m_headerText = localizedText("player_found_pair", {playerToMove()});
    }
    clearAttempt();
    if (std::ranges::all_of(cards(), &MemoryCard::isMatched))
        advanceToNextRoundIfNeeded();
}

void MemoryGame::settleMiss(std::size_t first, std::size_t second)
{
    m_failedAttempts = failedAttempts() + 1;
    // Until they turn back the attempt stays open, so every tap is ignored.
    m_pendingTurnBack = platform().mainQueue.asyncAfter(
        turnBackDelay, [this, first, second, missedPlayer = currentPlayerIndex()] {
            turnBack(first, second, missedPlayer);
        });
}

void MemoryGame::turnBack(std::size_t first, std::size_t second, int missedPlayer)
{
    m_pendingTurnBack.reset();
    playCardResetSound();
    setFaceUp(first, false);
    setFaceUp(second, false);
    clearAttempt();
    if (isVersusMode()) {
        m_currentPlayerIndex = (missedPlayer + 1) % 2;
        m_headerText = localizedText("player_turn", {playerToMove()});
    }
}

void MemoryGame::withdrawTurnBack()
{
    if (m_pendingTurnBack)
        platform().mainQueue.withdraw(*m_pendingTurnBack);
    m_pendingTurnBack.reset();
}

void MemoryGame::advanceToNextRoundIfNeeded()
{
    const std::int64_t total = totalRounds();
    if (currentRound() >= total) {
        playDoneSound();
        if (isVersusMode())
            finishVersusGame();
        else
            finishSoloGame();
        return;
    }
    m_currentRound = currentRound() + 1;
    loadRound(currentRound());
    // Replaces even the line that tells of too few pictures: the alert says it, too.
    m_headerText = isVersusMode()
                       ? localizedText("player_starts_round", {playerToMove(), currentRound()})
                       : localizedText("round_of_rounds", {currentRound(), total});
}

void MemoryGame::clearAttempt()
{
    m_firstSelectedIndex.reset();
    m_isCheckingPair = false;
}

void MemoryGame::setFaceUp(std::size_t position, bool isFaceUp)
{
    // Another board may lie there by the time a missed pair turns back.
    if (position < cards().size())
        m_cards.modify([&](MemoryCards& cards) { cards[position].isFaceUp = isFaceUp; });
}

void MemoryGame::setMatched(std::size_t position)
{
    m_cards.modify([&](MemoryCards& cards) { cards[position].isMatched = true; });
}
