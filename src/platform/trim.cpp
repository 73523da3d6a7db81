// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/trim.h"

QString trimmedText(const QString& text)
{
    return text.trimmed();
}
