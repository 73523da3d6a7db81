// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The text of `key` for a control: with the letter of `mnemonic_<key>` marked
/// as its mnemonic at its first place. A letter that the text lacks, as those on
/// a keyboard do in Chinese or Japanese, follows it: "終了(Q)". Without a letter
/// there is no mark. "&" in the text itself stays visible.
[[nodiscard]] QString controlText(const char* key);
