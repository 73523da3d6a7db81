// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/control_text.h"

#include "platform/localized_text.h"

QString controlText(const char* key)
{
    QString text = localizedText(key).replace(QLatin1Char('&'), QStringLiteral("&&"));
    const QString letter = localizedText(QStringLiteral("mnemonic_") + QString::fromLatin1(key));
    const qsizetype place = letter.size() == 1 ? text.indexOf(letter) : -1;
    if (place >= 0)
        text.insert(place, QLatin1Char('&'));
    return text;
}
