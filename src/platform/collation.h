// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

/// Whether `left` sorts before `right` for a reader of the user's language:
/// case makes no difference, digits compare one by one ("10" before "9").
[[nodiscard]] bool sortsBefore(QStringView left, QStringView right);
