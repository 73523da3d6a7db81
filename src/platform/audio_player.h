// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <memory>

/// Plays short sounds, one at a time.
///
/// Nothing here waits: opening the device (a sound server that never answers
/// costs half a minute), loading and playing happen in order on a thread of the
/// player's own. Where no device opens, files are still checked, silently.
class AudioPlayer {
public:
    /// Called on the player's thread with the words for what went wrong.
    using Failure = std::function<void(const QString& description)>;

    AudioPlayer();
    ~AudioPlayer();
    AudioPlayer(const AudioPlayer&) = delete;
    AudioPlayer& operator=(const AudioPlayer&) = delete;

    /// Begins to open the device, so that the first sound finds it open.
    void prepare();

    /// Starts `file` at `volume` (0 to 1), which cuts off the sound before it.
    /// A file that does not load is reported to `failure`; the earlier sound
    /// then plays on.
    void play(const QString& file, double volume, Failure failure);

private:
    class Mixer;
    std::shared_ptr<Mixer> m_mixer;
};
