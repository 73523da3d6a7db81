// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/card_texts.h"

#include "platform/localized_text.h"

#include <algorithm>

QString pictureName(const QString& fileName)
{
    const QString key = QStringLiteral("card_") + fileName;
    const QString name = localizedText(key);
    return name == key ? fileName : name;
}

QString pictureName(const MemoryCards& cards, const MemoryCard& card)
{
    if (!card.image.name.isEmpty())
        return pictureName(card.image.name);
    // The ids are random, and each occurs twice.
    const auto before = std::ranges::count_if(
        cards, [&card](const MemoryCard& other) { return other.pairID < card.pairID; });
    return localizedText("picture_without_name", {before / 2 + 1});
}

QString cardText(const MemoryCards& cards, std::size_t position, int columns, bool removeMatch)
{
    const MemoryCard& card = cards[position];
    const std::size_t row = position / static_cast<std::size_t>(columns) + 1;
    const std::size_t column = position % static_cast<std::size_t>(columns) + 1;
    if (!card.isFaceUp && !card.isMatched)
        return localizedText("tile_hidden", {row, column});
    if (card.isMatched && removeMatch)
        return localizedText("tile_removed", {row, column});
    return localizedText(card.isMatched ? "tile_found" : "tile_turned",
                         {row, column, pictureName(cards, card)});
}
