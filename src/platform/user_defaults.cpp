// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/user_defaults.h"

#include <cmath>
#include <limits>

namespace {

double finiteNumber(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toString().trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0.0;
}

std::int64_t nearestInteger(double number)
{
    // 2^63 is the first double above the range; -2^63 is the last within it.
    constexpr double limit = 9223372036854775808.0;
    if (number >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (number < -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(number);
}

} // namespace

UserDefaults::UserDefaults(const QString& path)
    : m_store(path, QSettings::IniFormat)
{
    reread();
}

bool UserDefaults::contains(QLatin1String key) const
{
    return m_values.contains(QString(key));
}

std::int64_t UserDefaults::integer(QLatin1String key) const
{
    const QVariant stored = value(key);
    bool fits = false;
    const qint64 number = stored.toString().trimmed().toLongLong(&fits);
    return fits ? number : nearestInteger(finiteNumber(stored));
}

double UserDefaults::floating(QLatin1String key) const
{
    return finiteNumber(value(key));
}

std::optional<QString> UserDefaults::string(QLatin1String key) const
{
    if (!contains(key))
        return std::nullopt;
    // INI reads an unquoted comma as a list; a person who wrote it meant a text.
    return value(key).toStringList().join(QStringLiteral(", "));
}

void UserDefaults::setInteger(QLatin1String key, std::int64_t value)
{
    write(key, QVariant(static_cast<qlonglong>(value)));
}

void UserDefaults::setString(QLatin1String key, const QString& value)
{
    write(key, value);
}

void UserDefaults::reread()
{
    m_store.sync();
    m_values.clear();
    for (const QString& key : m_store.allKeys())
        m_values.insert(key, m_store.value(key));
}

void UserDefaults::write(QLatin1String key, const QVariant& value)
{
    m_values.insert(QString(key), value);
    m_store.setValue(QString(key), value);
    m_store.sync();
    Q_EMIT written(QString(key));
}
