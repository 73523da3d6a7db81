// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRgb>
#include <QString>
#include <array>

class ApplicationBundle;
class QImage;

/// What stands for a deck outside the board.
struct DeckLook {
    /// The base names of the four pictures that are shown to invite; neighbours
    /// differ in hue and value. Empty for a deck of photos and an unknown deck.
    std::array<QString, 4> fanPictures{};
    /// The colours of its celebration.
    std::array<QRgb, 6> colours{};
};

/// The look of the deck named `deck`; never fails.
[[nodiscard]] const DeckLook& deckLook(const QString& deck);

/// The picture `name` of the bundle deck `deck`; null if it cannot be read.
[[nodiscard]] QImage deckPicture(const ApplicationBundle& bundle, const QString& deck,
                                 const QString& name);
