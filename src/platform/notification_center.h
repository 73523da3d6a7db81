// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <functional>

/// Announcements by name between parts that do not know each other.
///
/// They carry nothing but their name and are delivered before post() returns.
class NotificationCenter : public QObject {
    Q_OBJECT

public:
    /// Delivers `name` to every observer of that name, in order of subscription.
    void post(const QString& name);

    /// Calls `observer` at each post of `name`, as long as `context` lives.
    void observe(const QString& name, QObject* context, std::function<void()> observer);

Q_SIGNALS:
    void posted(const QString& name);
};
