// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/protocol/messages.h"

#include <cstring>

namespace PhotoMessages {

namespace {

constexpr qsizetype headerBytes = 1 + sizeof(quint32);

} // namespace

QByteArray encoded(Kind kind, QByteArrayView content)
{
    const auto length = static_cast<quint32>(content.size());
    QByteArray bytes;
    bytes.reserve(headerBytes + content.size());
    bytes.append(static_cast<char>(kind));
    bytes.append(reinterpret_cast<const char*>(&length), sizeof length);
    bytes.append(content);
    return bytes;
}

void FrameReader::append(QByteArrayView bytes)
{
    m_bytes.remove(0, m_read);
    m_read = 0;
    m_bytes.append(bytes);
}

std::optional<Frame> FrameReader::next()
{
    if (m_isBroken || m_bytes.size() - m_read < headerBytes)
        return std::nullopt;
    const char* const header = m_bytes.constData() + m_read;
    quint32 length = 0;
    std::memcpy(&length, header + 1, sizeof length);
    m_isBroken = static_cast<std::uint8_t>(*header) > static_cast<std::uint8_t>(Kind::done) ||
                 length > longestContent;
    if (m_isBroken || m_bytes.size() - m_read - headerBytes < qsizetype{length})
        return std::nullopt;
    Frame frame{static_cast<Kind>(*header), m_bytes.mid(m_read + headerBytes, length)};
    m_read += headerBytes + qsizetype{length};
    return frame;
}

} // namespace PhotoMessages
