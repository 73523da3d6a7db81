// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/memory_game.h"

#include "platform/alerts.h"
#include "platform/localized_text.h"
#include "platform/platform.h"
#include "platform/trim.h"
#include "platform/user_defaults.h"
#include "settings/settings_keys.h"

MemoryGame::MemoryGame()
{
    m_headerText = localizedText("enter_name");
    reloadHighscoresForCurrentSettings();
    connect(&platform().defaults, &UserDefaults::written, this, [](const QString& key) {
        if (key == SettingsKeys::PlaySounds)
            followSoundSetting();
    });
}

MemoryGame::~MemoryGame()
{
    withdrawTurnBack();
}

std::function<void()> MemoryGame::announcing(Member member)
{
    return [this, member] { Q_EMIT changed(member); };
}

std::array<QString, 2> MemoryGame::playerNames() const
{
    const auto nameOr = [](const QString& typed, const char* fallbackKey) {
        const QString name = trimmedText(typed);
        return name.isEmpty() ? localizedText(fallbackKey) : name;
    };
    return {nameOr(playerOneName(), "player_one"), nameOr(playerTwoName(), "player_two")};
}

bool MemoryGame::canStartGame() const
{
    return !trimmedText(playerName()).isEmpty();
}

bool MemoryGame::canStartVersusGame() const
{
    return !trimmedText(playerOneName()).isEmpty() && !trimmedText(playerTwoName()).isEmpty();
}

bool MemoryGame::canStart() const
{
    return isVersusMode() ? canStartVersusGame() : canStartGame();
}

std::int64_t MemoryGame::totalRounds() const
{
    return roundCount(platform().defaults.integer(SettingsKeys::AmountRounds));
}

void MemoryGame::updateHeaderForCurrentTurn()
{
    m_headerText = isVersusMode()
                       ? localizedText("player_turn", {playerToMove()})
                       : localizedText("round_of_rounds", {currentRound(), totalRounds()});
}

void MemoryGame::showLocalizedAlert(const char* messageKey, const char* informativeTextKey)
{
    platform().mainQueue.async(
        [message = QByteArray(messageKey), informative = QByteArray(informativeTextKey)] {
            platform().alerts.warn(localizedText(message.constData()),
                                   informative.isEmpty() ? QString()
                                                         : localizedText(informative.constData()),
                                   localizedText("ok"));
        });
}

const CardLayout& MemoryGame::layout() const
{
    return cardLayout(platform().defaults.integer(SettingsKeys::AmountCards));
}

QString MemoryGame::playerToMove() const
{
    return playerNames()[static_cast<std::size_t>(currentPlayerIndex())];
}

QString MemoryGame::soloPlayerName() const
{
    const QString name = trimmedText(playerName());
    return name.isEmpty() ? localizedText("unknown_player") : name;
}
