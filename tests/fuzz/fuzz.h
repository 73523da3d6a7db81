// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Tries one input, a copy of its own, so that whatever reads beyond its end is seen.
/// fuzzer.cpp calls it with what the fuzzer makes up, replay.cpp with each stored input.
void tryInput(const QByteArray& input);

/// Ends the process as a crash does where the program breaks this promise.
inline void require(bool holds, const char* promise)
{
    if (holds)
        return;
    (void)std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}
