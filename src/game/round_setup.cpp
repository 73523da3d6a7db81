// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Starting a game and dealing its rounds.
#include "decks/deck_name.h"
#include "game/game_status.h"
#include "game/memory_game.h"
#include "game/rules/shuffle.h"
#include "platform/alerts.h"
#include "platform/localized_text.h"
#include "platform/platform.h"
#include "platform/trim.h"
#include "platform/user_defaults.h"
#include "settings/settings_keys.h"

#include <algorithm>

void MemoryGame::startNewGame()
{
    if (!canStart()) {
        m_headerText = localizedText(isVersusMode() ? "enter_player_names" : "enter_name");
        return;
    }
    platform().defaults.reread();
    withdrawTurnBack();
    if (!isVersusMode())
        m_playerName = trimmedText(playerName());
    stopTimer();
    m_timerStarted = false;

    m_elapsedSeconds = 0;
    m_failedAttempts = 0;
    m_currentRound = 1;
    m_gameCompleted = false;
    m_winnerText = QString();
    m_playerScores = {0, 0};
    m_currentPlayerIndex = 0;
    m_isGameActive = true;
    publishGameStatus(true);

    clearAttempt();
    updateHeaderForCurrentTurn();
    loadRound(currentRound());

    // Opening the device may take its time; the first card is turned later.
    if (isGameActive())
        followSoundSetting();
}

void MemoryGame::loadRound(std::int64_t round)
{
    clearAttempt();
    m_currentRound = round;
    updateHeaderForCurrentTurn();

    const bool isPhotoDeck = cardDeck() == photoLibraryDeck() || selectedPhotoAlbumName();
    CardPictures pictures = isPhotoDeck ? loadImagesFromPhotoLibrary() : loadImagesFromBundle();
    const auto needed = static_cast<std::size_t>(pairsPerRound());
    shuffle(pictures);
    pictures.resize(std::min(pictures.size(), needed));
    if (pictures.size() < needed) {
        stopForTooFewPictures(round);
        return;
    }
    m_cards = dealtCards(pictures);
}

void MemoryGame::stopForTooFewPictures(std::int64_t round)
{
    QString message;
    if (selectedPhotoAlbumName())
        message = localizedText("iphoto_not_enough_images_in_album", {pairsPerRound()});
    else if (cardDeck() == photoLibraryDeck())
        message = localizedText("iphoto_not_enough_images", {pairsPerRound()});
    else
        message = localizedText("not_enough_images_for_round", {pairsPerRound(), round});

    m_headerText = message;
    m_isGameActive = false;
    publishGameStatus(false);
    m_cards = MemoryCards();
    platform().mainQueue.async([message] {
        platform().alerts.warn(QStringLiteral("Paircade"), message, QStringLiteral("OK"));
    });
}

MemoryCards MemoryGame::dealtCards(const CardPictures& pictures)
{
    MemoryCards cards;
    cards.reserve(2 * pictures.size());
    for (const CardPicture& picture : pictures) {
        const QUuid pairID = QUuid::createUuid();
        for (int copy = 0; copy < 2; ++copy)
            cards.push_back({.image = picture, .pairID = pairID});
    }
    shuffle(cards);
    return cards;
}
