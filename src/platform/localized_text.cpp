// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/localized_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
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

bool Catalogues::install(const QString& folder, const QStringList& languages)
{
    const QStringList tags = languages + QStringList{QStringLiteral("en")};
    const bool isLoaded = std::ranges::any_of(tags, [&](QString tag) {
        // The loading itself drops one part of the name after the other, from the end.
        tag.replace(QLatin1Char('-'), QLatin1Char('_'));
        return m_ours.load(QStringLiteral("paircade_") + tag, folder, QStringLiteral("_"));
    });
    if (!isLoaded)
        return false;
    QCoreApplication::installTranslator(&m_ours);
    if (m_controls.load(QLocale(m_ours.language()), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_controls);
    return true;
}
