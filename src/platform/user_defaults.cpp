// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/user_defaults.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryFile>
#include <cmath>
#include <fcntl.h>
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

/// Whether the file is there for the user to read, and yet cannot be read this time.
bool isWithheld(const QString& path)
{
    if (!QFileInfo(path).isReadable())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true;
    (void)file.readAll();
    return file.error() != QFileDevice::NoError;
}

/// QSettings would wait for a pipe without end, replace a device, wait for a lock that is
/// no file, and take for empty, to write it anew, what out of handles or on a failing disk
/// it cannot read; in place of such a path it is given one where nothing can be.
QString pathForStore(const QString& path)
{
    const QString nowhere = QStringLiteral("/dev/null/none");
    for (const QFileInfo& file : {QFileInfo(path), QFileInfo(path + QStringLiteral(".lock"))}) {
        if (file.exists() && !file.isFile())
            return nowhere;
    }
    return isWithheld(path) ? nowhere : path;
}

} // namespace

UserDefaults::UserDefaults(const QString& path)
    : m_store(pathForStore(path), QSettings::IniFormat)
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
    setAll({{QString(key), static_cast<qlonglong>(value)}});
}

void UserDefaults::setString(QLatin1String key, const QString& value)
{
    setAll({{QString(key), value}});
}

void UserDefaults::reread()
{
    m_store.sync();
    m_values.clear();
    for (const QString& key : m_store.allKeys())
        m_values.insert(key, m_store.value(key));
    m_values.insert(m_unsaved);
}

void UserDefaults::setAll(const QVariantMap& values)
{
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        m_values.insert(value.key(), value.value());
        m_unsaved.insert(value.key(), value.value());
    }
    if (canBeLocked() && hasRoom()) {
        for (auto unsaved = m_unsaved.cbegin(); unsaved != m_unsaved.cend(); ++unsaved)
            m_store.setValue(unsaved.key(), unsaved.value());
        m_unsaved.clear();
        m_store.sync();
    }
    for (const QString& key : values.keys())
        Q_EMIT written(key);
}

/// Whether the lock that QSettings takes for a write can be had: it would wait without
/// end for one that nobody holds but that cannot be removed.
bool UserDefaults::canBeLocked() const
{
    constexpr int patience = 200; // ms
    QLockFile probe(m_store.fileName() + QStringLiteral(".lock"));
    if (probe.tryLock(patience) || probe.error() != QLockFile::LockFailedError)
        return true;
    // Left empty by a crash right after it was made, it would be in the way for half a
    // minute. Of a process that lives it cannot be removed.
    return probe.removeStaleLockFile() && probe.tryLock(0);
}

/// Whether the disk can take the file anew. QSettings does not notice that a write
/// failed at its end, and would put a file cut short in the place of a whole one.
///
/// A folder that takes no new file has no room either, though the file itself may be
/// writable: what is written over a file in place is cut short by a crash or a power cut
/// in the middle, and that costs every setting, not only those of this run.
bool UserDefaults::hasRoom() const
{
    const QFileInfo file(m_store.fileName());
    if (!file.isFile())
        return true; // so there is nothing to lose
    constexpr qint64 lockAndGrowth = 16'384;
    QTemporaryFile sample(file.path() + QStringLiteral("/room"));
    return sample.open() &&
           ::posix_fallocate(sample.handle(), 0, 2 * file.size() + lockAndGrowth) == 0;
}
