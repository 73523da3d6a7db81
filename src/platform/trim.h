// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// `text` without white space and line breaks at both ends, nothing removed
/// inside. White space is what Unicode gives the property White_Space, the
/// no-break and ideographic spaces included.
[[nodiscard]] QString trimmedText(const QString& text);
