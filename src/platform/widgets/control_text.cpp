// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/control_text.h"

#include "platform/localized_text.h"

QString controlText(const char* key)
{
    QString text = localizedText(key).replace(QLatin1Char('&'), QStringLiteral("&&"));
    const QString letter = localizedText(QStringLiteral("mnemonic_") + QString::fromLatin1(key));
    if (letter.size() != 1 || !letter[0].isLetterOrNumber())
        return text;
    const qsizetype place = text.indexOf(letter);
    if (place >= 0)
        return text.insert(place, QLatin1Char('&'));
    // Before the marks that end a caption or say that a dialog follows.
    qsizetype end = text.size();
    while (end > 0 && QStringView(u":：…. ").contains(text[end - 1]))
        --end;
    return text.insert(end, QStringLiteral("(&%1)").arg(letter));
}
