// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_game.h"

#include <QDir>
#include <QImage>
#include <algorithm>

/// Writes a deck of `count` plain pictures, each in a colour of its own, into
/// the resource folder `resources`.
inline void makeDeck(const QString& resources, const QString& deck, int count)
{
    const QString folder = resources + QStringLiteral("/Cards/") + deck;
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    for (int i = 0; i < count; ++i) {
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(QColor::fromHsv(i * 359 / std::max(count, 1), 200, 200));
        if (!picture.save(folder +
                          QStringLiteral("/picture%1.png").arg(i, 2, 10, QLatin1Char('0'))))
            qFatal("cannot write the deck");
    }
}

/// The position of the hidden card at or after `from` that matches the card
/// `position` (or, if `matches` is false, does not); the board's size if none.
inline std::size_t otherCard(const MemoryGame& game, std::size_t position, bool matches,
                             std::size_t from = 0)
{
    const MemoryCards& cards = game.cards();
    const auto found = std::find_if(
        cards.begin() + std::ptrdiff_t(from), cards.end(), [&](const MemoryCard& card) {
            return card.id != cards[position].id && !card.isFaceUp && !card.isMatched &&
                   (card.pairID == cards[position].pairID) == matches;
        });
    return std::size_t(found - cards.begin());
}

/// The position of the first hidden card.
inline std::size_t hiddenCard(const MemoryGame& game)
{
    const auto hidden = std::ranges::find_if_not(game.cards(), &MemoryCard::isFaceUp);
    return std::size_t(hidden - game.cards().begin());
}

inline void flip(MemoryGame& game, std::size_t position)
{
    game.flipCard(game.cards()[position]);
}

/// Turns two hidden cards that match.
inline void findPair(MemoryGame& game)
{
    const std::size_t first = hiddenCard(game);
    const std::size_t second = otherCard(game, first, true);
    flip(game, first);
    flip(game, second);
}

/// Turns two hidden cards that do not match.
inline void miss(MemoryGame& game)
{
    const std::size_t first = hiddenCard(game);
    const std::size_t second = otherCard(game, first, false);
    flip(game, first);
    flip(game, second);
}

[[nodiscard]] inline std::ptrdiff_t faceUpCards(const MemoryGame& game)
{
    return std::ranges::count_if(game.cards(), &MemoryCard::isFaceUp);
}
