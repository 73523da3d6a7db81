// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>

/// What the game and its helper paircade-photos say to each other.
///
/// The game writes requests to the helper's standard input and reads replies from
/// its standard output; one request at a time. A frame is a byte for its kind,
/// four for the length of what follows, in the machine's order, and that. Paths
/// are bytes, relative to the folder of the library.
namespace PhotoMessages {

/// The width and height of every picture, in pixels.
inline constexpr int pictureEdge = 512;
inline constexpr qsizetype pictureBytes = qsizetype{4} * pictureEdge * pictureEdge;

/// The longest content of a frame; a longer one is an error.
inline constexpr quint32 longestContent = quint32{pictureBytes} + 1;

/// What a frame asks or answers.
enum class Kind : std::uint8_t {
    // Requests.
    countedAlbums, ///< No content. Replies: album, each with its count, then done.
    albums,        ///< No content. Replies: album, then done.
    images,        ///< Every picture, no films. No content. Replies: paths, then done.
    assets,        ///< All below a folder. Content: its path. Replies: paths, then done.
    picture,       ///< Content: a path. Reply: pixels.

    // Replies.
    album,   ///< A byte (0: holds nothing; 1: something, or not counted), the folder's name.
    paths,   ///< Paths, each followed by NUL.
    pixels,  ///< Nothing if there is no picture. Else 1 if it has alpha or 0, then the
             ///< pixels as 32-bit ARGB, premultiplied.
    working, ///< No content. Progress without a result so far.
    done,    ///< No content. The end of a list; without it something may be missing.
};

struct Frame {
    Kind kind{};
    QByteArray content{};
};

/// The bytes of a frame; `content` is no longer than longestContent.
[[nodiscard]] QByteArray encoded(Kind kind, QByteArrayView content = {});

/// Puts frames together from bytes as they arrive.
class FrameReader {
public:
    /// Takes what has arrived, in pieces of any length.
    void append(QByteArrayView bytes);

    /// The next frame; none as long as it is not complete.
    [[nodiscard]] std::optional<Frame> next();

    /// What arrived is no frame; nothing can be read any more.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

private:
    QByteArray m_bytes{};
    qsizetype m_read = 0; ///< Bytes of frames that were taken already.
    bool m_isBroken = false;
};

} // namespace PhotoMessages
