// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// What of a card is seen at a moment; every number can lie between two states.
struct CardLook {
    double turn = 0;    ///< Degrees about the vertical axis: 0 back, 180 front.
    double back = 1;    ///< Opacity of the back.
    double front = 0;   ///< Opacity of the picture's face.
    double overall = 1; ///< Opacity of the whole card.
    double found = 0;   ///< From the grey outline (0) to the yellow one (1).

    bool operator==(const CardLook&) const = default;
};

/// All numbers of a CardLook. Each moves by itself, so that a new outline does not
/// restart a turn.
inline constexpr std::array cardLookValues{&CardLook::turn, &CardLook::back, &CardLook::front,
                                           &CardLook::overall, &CardLook::found};

/// How long a change of a card's state takes, in seconds.
inline constexpr double cardTurnSeconds = 0.45;

/// The look of a card at rest.
[[nodiscard]] constexpr CardLook cardLook(bool isFaceUp, bool isMatched, bool removeMatch)
{
    const bool isRemoved = isMatched && removeMatch;
    const bool showsFront = (isFaceUp || isMatched) && !isRemoved;
    return {.turn = showsFront ? 180.0 : 0.0,
            .back = isFaceUp || isMatched ? 0.0 : 1.0,
            .front = showsFront ? 1.0 : 0.0,
            .overall = isRemoved ? 0.0 : 1.0,
            .found = isMatched ? 1.0 : 0.0};
}
