// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <memory>

/// Plays short sounds, one at a time.
///
/// Nothing here waits: opening the device (a sound server that never answers
/// costs half a minute), loading and playing happen in order on a thread of the
/// player's own. Where no device opens, files are still checked, silently. A
/// device that has nothing to play is closed, and opened again by the next call.
class AudioPlayer {
public:
    /// Called with the words for what went wrong, on the player's thread, or on the
    /// caller's if there is none to be had.
    using Failure = std::function<void(const QString& description)>;

    /// How long an open device may have nothing to play; it costs processor time all
    /// the while. Longer than most thinking between two taps, which thus sound at once;
    /// past it the sound server keeps its card awake for some seconds more, and the
    /// opening delays a sound by less than anybody notices of a lag behind a picture
    /// (125 ms, by ITU-R BT.1359).
    static constexpr std::chrono::seconds idleTime{3};

    /// To be made once there is an application, which tells where the module of
    /// the sound device lies.
    explicit AudioPlayer(std::chrono::milliseconds closesAfter = idleTime);
    ~AudioPlayer();
    AudioPlayer(const AudioPlayer&) = delete;
    AudioPlayer& operator=(const AudioPlayer&) = delete;

    /// Begins to open the device, so that the next sound finds it open.
    void prepare();

    /// Starts `file` at `volume` (0 to 1), which cuts off the sound before it.
    /// A file that does not load is reported to `failure`; the earlier sound
    /// then plays on.
    void play(const QString& file, double volume, Failure failure);

private:
    class Performer;
    std::shared_ptr<Performer> m_performer;
};
