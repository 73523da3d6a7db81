// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Writes pictures of the menus, messages, preferences and the question for the
/// photos, in `language`, into `folder`.
void paintDialogs(const QString& folder, const QString& language);
