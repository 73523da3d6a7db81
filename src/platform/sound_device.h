// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>

/// An open sound device, which plays one sound at a time. Used by one thread.
///
/// It is made by a module of its own, found at run time: linking the libraries
/// behind it would make the program's start longer by a third.
class SoundDevice {
public:
    struct Start {
        std::chrono::milliseconds length{}; ///< How long the sound plays.
        std::string failure{};              ///< Why it does not; empty if it does.
    };

    SoundDevice() = default;
    /// Closes the device at once, whatever plays.
    virtual ~SoundDevice() = default;
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// Starts the file at `path` at `volume` (0 to 1), which cuts off the sound
    /// before it. If the file does not load, that sound plays on.
    [[nodiscard]] virtual Start play(const std::string& path, double volume) = 0;
};

/// What the module offers under the name `openSoundDevice`: a device that the
/// caller deletes, silent where none can be opened; never null. May take half a
/// minute, which is what a sound server that never answers costs.
using OpenSoundDevice = SoundDevice*();
