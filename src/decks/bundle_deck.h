// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decks/card_picture.h"

#include <cstddef>

class ApplicationBundle;

/// Every picture of the deck `deck` in the bundle's folder Cards, in order of
/// file name; read anew at each call.
///
/// A deck that cannot be listed gives an empty list and a line in the debug
/// log; a file that does not decode is left out without a word.
[[nodiscard]] CardPictures loadBundleDeck(const ApplicationBundle& bundle, const QString& deck);

/// The first `count` pictures of that list, and no others are read. A deck that
/// cannot be listed gives an empty list without a word.
[[nodiscard]] CardPictures firstBundlePictures(const ApplicationBundle& bundle, const QString& deck,
                                               std::size_t count);
