// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/memory_card.h"

/// What a picture of a deck is called; `fileName`, its file's base name, if it has no text.
[[nodiscard]] QString pictureName(const QString& fileName);

/// What the picture of `card` is called.
///
/// A photo has no name and is numbered instead, so that it can be told from the
/// others on the board `cards` by ear: from 1, in an order that tells no places.
[[nodiscard]] QString pictureName(const MemoryCards& cards, const MemoryCard& card);

/// The place and state of the card at `position` of `cards` for a screen reader, on a
/// board of `columns`. A hidden picture is not named, nor one that left the board.
[[nodiscard]] QString cardText(const MemoryCards& cards, std::size_t position, int columns,
                               bool removeMatch);
