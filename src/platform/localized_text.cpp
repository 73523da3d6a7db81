// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/localized_text.h"

#include <QCoreApplication>

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

bool loadCatalogue(QTranslator& translator, const QString& folder, const QStringList& languages)
{
    for (const QString& tag : languages + QStringList{QStringLiteral("en")}) {
        const QString language = tag.section(QLatin1Char('-'), 0, 0);
        if (translator.load(QStringLiteral("paircade_") + language, folder, QString()))
            return true;
    }
    return false;
}
