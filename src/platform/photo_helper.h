// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photos/protocol/descriptor.h"
#include "photos/protocol/messages.h"

#include <QDeadlineTimer>
#include <QString>
#include <chrono>
#include <sys/types.h>

/// How long the game waits for photos before it gives up.
struct PhotoPatience {
    std::chrono::seconds silence{10}; ///< Without a sign of progress.
    std::chrono::seconds round{30};   ///< For all that one round asks.
};

/// The process of paircade-photos, which reads files that nobody vouches for. Every
/// call returns in bounded time, whatever becomes of the process.
class PhotoHelper {
public:
    enum class State {
        running,
        ended,       ///< It crashed, was ended, or talks nonsense.
        stalled,     ///< It gave no sign for too long, and was ended.
        interrupted, ///< The game is to end, and so it was ended.
    };

    /// Starts `program` for the library in the folder `library`. It may show no
    /// progress for `silence`.
    PhotoHelper(const QString& program, const QByteArray& library, std::chrono::seconds silence);
    ~PhotoHelper();
    PhotoHelper(const PhotoHelper&) = delete;
    PhotoHelper& operator=(const PhotoHelper&) = delete;

    /// From when on `descriptor` has something to read, every helper is ended as
    /// interrupted; -1 for none, as in the beginning.
    static void interruptWhenReadable(int descriptor);

    [[nodiscard]] State state() const { return m_state; }

    /// Asks; receive() has the answers. Does nothing once the helper is not running.
    void send(PhotoMessages::Kind request, QByteArrayView content = {});

    /// The next reply; none once the helper is not running. Where `deadline` passes
    /// first the helper is ended as stalled.
    [[nodiscard]] std::optional<PhotoMessages::Frame> receive(QDeadlineTimer deadline);

private:
    void end(State state);
    /// Takes in some of what has arrived; false at the end of it.
    bool takeBytes();

    std::chrono::seconds m_silence;
    State m_state = State::ended;
    pid_t m_process = -1;
    Descriptor m_requests{};
    Descriptor m_replies{};
    PhotoMessages::FrameReader m_reader{};
};
