// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Tries one input; what the fuzzer calls, and replay.cpp with each stored input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// A copy of its own, so that whatever reads beyond its end is seen.
inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), qsizetype(size)};
}

/// Ends the process as a crash does where the program breaks this promise.
inline void require(bool holds, const char* promise)
{
    if (holds)
        return;
    (void)std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}
