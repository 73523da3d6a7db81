// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class UserDefaults;

/// Stores the default of every setting that is missing, with one write. A stored value,
/// of whatever type or range, is never overwritten.
void createDefaultSettings(UserDefaults& defaults);
