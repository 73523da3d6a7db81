// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>

/// An open sound device, which plays one sound at a time. Used by one thread.
///
/// It is made by a module of its own, found at run time: linking the libraries
/// behind it would make the program's start longer by a third.
class SoundDevice {
public:
    SoundDevice() = default;
    /// Closes the device at once, whatever plays.
    virtual ~SoundDevice() = default;
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// Loads the file at `path` instead of one that was loaded but not started. Returns
    /// the error if that fails, which changes nothing; none if it succeeds.
    [[nodiscard]] virtual std::optional<std::string> load(const std::string& path) = 0;

    /// Starts the sound loaded last at `volume` (0 to 1), which cuts off the sound before
    /// it. Returns its length. Called at most once for each sound that was loaded.
    [[nodiscard]] virtual std::chrono::milliseconds start(double volume) = 0;
};

/// What the module offers under the name `openSoundDevice`: a device that the
/// caller deletes, silent where none can be opened; never null. May take half a
/// minute, which is what a sound server that never answers costs.
using OpenSoundDevice = SoundDevice*();
