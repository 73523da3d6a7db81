// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

/// The keys of the settings. Every reader reads the store at the moment of use,
/// and copes with any value: the file may have been edited by hand.
///
/// Boolean settings are whole numbers of which exactly 1 means on.
namespace SettingsKeys {

/// Card layout, 1 to 6 (see card_layout.h); default 1.
inline constexpr QLatin1String AmountCards{"AmountCards"};
/// Rounds of a game, at least 1; default 1.
inline constexpr QLatin1String AmountRounds{"AmountRounds"};
/// Name of the deck (see deck_name.h); default "Cyberpunk".
inline constexpr QLatin1String CardDeck{"CardDeck"};
/// Boolean: a game is running. No default: missing until the first game.
inline constexpr QLatin1String GameIsActive{"GameIsActive"};
/// Boolean: the window turns to full screen at launch; default off.
inline constexpr QLatin1String LaunchInFullscreen{"LaunchInFullscreen"};
/// Boolean: sounds are played; default on.
inline constexpr QLatin1String PlaySounds{"PlaySounds"};
/// Loudness of the sounds in percent, 0 to 100; default 50.
inline constexpr QLatin1String VolumeSound{"VolumeSound"};
/// Boolean: found pairs leave the board; default off.
inline constexpr QLatin1String RemoveMatch{"RemoveMatch"};
/// Boolean: the player keeps an album for the game; default off.
inline constexpr QLatin1String PaircadeAlbum{"PaircadeAlbum"};

} // namespace SettingsKeys
