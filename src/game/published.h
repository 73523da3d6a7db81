// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

/// A member whose every assignment is announced, also that of an equal value.
template <class Value>
class Published {
public:
    /// Announcing begins after construction: the initial value is not announced.
    explicit Published(std::function<void()> announce, Value initial = {})
        : m_announce(std::move(announce))
        , m_value(std::move(initial))
    {
    }

    [[nodiscard]] const Value& get() const noexcept { return m_value; }

    Published& operator=(Value value)
    {
        m_value = std::move(value);
        m_announce();
        return *this;
    }

    /// Assigns a part: lets `change` edit the value in place, announced once.
    template <class Change>
    void modify(Change change)
    {
        change(m_value);
        m_announce();
    }

private:
    std::function<void()> m_announce;
    Value m_value;
};
