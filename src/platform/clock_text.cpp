// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/clock_text.h"

QString clockText(std::int64_t seconds)
{
    return QString::asprintf("%02lld:%02lld", static_cast<long long>(seconds / 60),
                             static_cast<long long>(seconds % 60));
}
