// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class AudioPlayer;

/// Plays the sound `name` of the game at the volume of the settings, unless they
/// switch sounds off. One that cannot be had is skipped with a line in the debug
/// log. Returns the player that was asked to play; null if none was.
AudioPlayer* playSoundEffect(const QString& name);
