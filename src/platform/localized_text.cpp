// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/localized_text.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

QString localizedText(const QString& key)
{
    return localizedText(key.toUtf8().constData());
}

QString localizedText(const char* key)
{
    return qtTrId(key);
}

QString localizedText(const char* key, std::initializer_list<FormatArgument> arguments)
{
    return fillFormat(localizedText(key), arguments);
}

QString localizedCount(const char* key, std::int64_t count,
                       std::initializer_list<FormatArgument> arguments)
{
    const auto number = std::clamp<std::int64_t>(count, 0, std::numeric_limits<int>::max());
    return fillFormat(qtTrId(key, static_cast<int>(number)), arguments);
}

bool loadCatalogue(QTranslator& translator, const QString& folder, const QStringList& languages)
{
    for (QString tag : languages + QStringList{QStringLiteral("en")}) {
        // The loading itself drops one part of the name after the other, from the end.
        tag.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (translator.load(QStringLiteral("paircade_") + tag, folder, QStringLiteral("_")))
            return true;
    }
    return false;
}
