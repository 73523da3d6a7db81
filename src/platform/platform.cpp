// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/platform.h"

#include <QtGlobal>

namespace {

const Platform* current = nullptr;

} // namespace

const Platform& platform()
{
    Q_ASSERT(current != nullptr);
    return *current;
}

void usePlatform(const Platform* services)
{
    current = services;
}
