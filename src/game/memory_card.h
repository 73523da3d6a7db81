// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decks/card_picture.h"

#include <QUuid>
#include <vector>

/// One card on the board. Two cards match when their pairs are the same; a card
/// is the same card only when its id is.
struct MemoryCard {
    QUuid id = QUuid::createUuid(); ///< Identity of this card.
    CardPicture image{};            ///< Shared by the two cards of a pair.
    QUuid pairID{};                 ///< Equal for the two cards of a pair only.
    bool isFaceUp = false;          ///< Shows its picture.
    bool isMatched = false;         ///< Belongs to a found pair, and then lies face up.
};

using MemoryCards = std::vector<MemoryCard>;
