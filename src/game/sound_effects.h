// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Plays the sound `name` of the game at the volume of the settings, unless they
/// switch sounds off. A sound that is missing or does not load is skipped with a
/// line in the debug log; the lines keep the order of the calls.
void playSoundEffect(const QString& name);
