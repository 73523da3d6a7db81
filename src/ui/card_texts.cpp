// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/card_texts.h"

#include "platform/localized_text.h"

QString pictureName(const CardPicture& picture)
{
    if (picture.name.isEmpty())
        return localizedText("picture_without_name");
    const QString key = QStringLiteral("card_") + picture.name;
    const QString name = localizedText(key);
    return name == key ? picture.name : name;
}

QString cardText(const MemoryCard& card, std::size_t position, int columns, bool removeMatch)
{
    const std::size_t row = position / static_cast<std::size_t>(columns) + 1;
    const std::size_t column = position % static_cast<std::size_t>(columns) + 1;
    if (!card.isFaceUp && !card.isMatched)
        return localizedText("tile_hidden", {row, column});
    if (card.isMatched && removeMatch)
        return localizedText("tile_removed", {row, column});
    return localizedText(card.isMatched ? "tile_found" : "tile_turned",
                         {row, column, pictureName(card.image)});
}
