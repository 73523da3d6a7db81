// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <new>

/// Does `work`; false if the memory did not suffice for all of it.
///
/// For work on files of any length, so that a file too long costs what was to be
/// done with it and not the game.
template <class Work>
[[nodiscard]] bool withinMemory(const Work& work)
{
    try {
        work();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}
