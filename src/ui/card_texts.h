// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_card.h"

/// What a card's picture is called; its file's name if it has no text, and a word
/// for any picture if it has no name either.
[[nodiscard]] QString pictureName(const CardPicture& picture);

/// The card's place and state for a screen reader, at `position` on a board of
/// `columns`. A hidden picture is not named, nor one that left the board.
[[nodiscard]] QString cardText(const MemoryCard& card, std::size_t position, int columns,
                               bool removeMatch);
