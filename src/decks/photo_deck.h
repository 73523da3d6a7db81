// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decks/card_picture.h"
#include "platform/photo_fetch.h"

/// Up to `most` pictures, drawn from `assets` with equal chances; only those drawn
/// are read. One that yields no picture is left out and not replaced.
[[nodiscard]] CardPictures loadPhotoDeck(PhotoFetch& fetch, PhotoAssets assets, std::size_t most);
