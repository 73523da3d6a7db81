// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/notification_center.h"

#include <utility>

void NotificationCenter::post(const QString& name)
{
    Q_EMIT posted(name);
}

void NotificationCenter::observe(const QString& name, QObject* context,
                                 std::function<void()> observer)
{
    connect(
        this, &NotificationCenter::posted, context,
        [name, observer = std::move(observer)](const QString& posted) {
            if (posted == name)
                observer();
        },
        Qt::DirectConnection);
}
