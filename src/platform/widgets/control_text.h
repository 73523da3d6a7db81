// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The text of `key` for a control: with the letter of `mnemonic_<key>` marked
/// as its mnemonic at its first place; without a mark if there is no such text
/// or letter. "&" in the text itself stays visible.
[[nodiscard]] QString controlText(const char* key);
