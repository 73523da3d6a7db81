// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photos/protocol/descriptor.h"
#include "photos/protocol/messages.h"

#include <QDeadlineTimer>
#include <QString>
#include <chrono>
#include <sys/types.h>

/// The process of paircade-photos, which reads files that nobody vouches for. Every
/// call returns in bounded time, whatever becomes of the process.
class PhotoHelper {
public:
    /// How long the helper may show no progress.
    static constexpr std::chrono::seconds longestSilence{10};

    enum class State {
        running,
        ended,   ///< It crashed, was ended, or talks nonsense.
        stalled, ///< It gave no sign for too long, and was ended.
    };

    /// Starts `program` for the library in the folder `library`.
    PhotoHelper(const QString& program, const QByteArray& library);
    ~PhotoHelper();
    PhotoHelper(const PhotoHelper&) = delete;
    PhotoHelper& operator=(const PhotoHelper&) = delete;

    [[nodiscard]] State state() const { return m_state; }

    void send(PhotoMessages::Kind request, QByteArrayView content = {});

    /// The next reply; none once the helper is not running. Where `deadline` passes
    /// first the helper is ended as stalled.
    [[nodiscard]] std::optional<PhotoMessages::Frame> receive(QDeadlineTimer deadline);

private:
    void end(State state);
    /// Takes in what has arrived; false at the end of it.
    bool takeBytes();

    State m_state = State::ended;
    pid_t m_process = -1;
    Descriptor m_requests{};
    Descriptor m_replies{};
    PhotoMessages::FrameReader m_reader{};
};
