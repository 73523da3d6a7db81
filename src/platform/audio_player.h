// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <memory>

/// Plays short sounds, one at a time.
///
/// No call waits: opening the device (30 s if a sound server never answers), loading
/// and playing happen in order on a playback thread. Of the sounds that wait for the
/// device, only the newest that loads is played. If no device opens, files are still
/// checked, silently. An idle device is closed, and opened again by the next call.
///
/// The destructor completes the waiting requests without playing them. If the device
/// hangs, it only calls the reports.
class AudioPlayer {
public:
    /// Called with a description of the error, on the playback thread, or on the
    /// caller's if the system has no thread left.
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

    /// Calls `task` on the thread of a Failure after the sounds requested before it were
    /// loaded, so that log lines keep the order of the calls.
    void report(std::function<void()> task);

    /// Discards the sounds that are not playing yet; their files are still checked.
    void silenceWaiting();

    /// Returns the file that was loaded last; empty before the first.
    [[nodiscard]] QString loadedFile() const;

private:
    class Performer;
    std::shared_ptr<Performer> m_performer;
};
