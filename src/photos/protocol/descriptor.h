// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

/// A file descriptor that is closed in the end; below 0 for none.
class Descriptor {
public:
    explicit Descriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }
    /// Hands it over; the receiver closes it.
    [[nodiscard]] int release() { return std::exchange(m_descriptor, -1); }

private:
    int m_descriptor;
};
