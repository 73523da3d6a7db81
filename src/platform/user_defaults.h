// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <cstdint>
#include <optional>

/// The persistent settings of one user: a key/value store in one INI file.
///
/// Every write is synced at once, and each read sees the last write. What other
/// programs write into the file is seen from the next reread() on, so that no
/// setting changes in the middle of a game. Reads never fail: a missing key has
/// the result named at each reader. A file that cannot be written keeps its
/// contents, and the values written live until the process ends.
class UserDefaults : public QObject {
    Q_OBJECT

public:
    /// Uses the INI file at `path`, which need not exist yet.
    explicit UserDefaults(const QString& path);

    /// Whether any value, of whatever type, is stored under `key`.
    [[nodiscard]] bool contains(QLatin1String key) const;

    /// The whole number under `key`; 0 for a missing key or no number at all.
    /// A fraction is cut off, a number beyond 64 bits gives the nearest one.
    [[nodiscard]] std::int64_t integer(QLatin1String key) const;

    /// The number under `key`; 0.0 for a missing key, a text, infinity and NaN.
    [[nodiscard]] double floating(QLatin1String key) const;

    /// The text under `key`; none for a missing key.
    [[nodiscard]] std::optional<QString> string(QLatin1String key) const;

    /// Stores under `key` what is read from now on, whether or not the file takes it.
    void setInteger(QLatin1String key, std::int64_t value);
    void setString(QLatin1String key, const QString& value);

    /// Stores all of `values`, integers and texts, with one write of the file.
    void setAll(const QVariantMap& values);

    /// Takes over what other programs have written into the file since.
    void reread();

Q_SIGNALS:
    /// Emitted for each key that this process wrote, after all values of the write are
    /// readable. The value may equal the old one.
    void written(const QString& key);

private:
    [[nodiscard]] QVariant value(QLatin1String key) const { return m_values.value(QString(key)); }
    [[nodiscard]] bool canBeLocked() const;
    [[nodiscard]] bool hasRoom() const;

    QSettings m_store;
    QVariantHash m_values{};
    QVariantHash m_unsaved{}; ///< Written, but not yet handed to m_store.
};
