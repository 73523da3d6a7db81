// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/date_text.h"

#include <QLocale>
#include <array>
#include <unicode/udat.h>

QString currentLocaleIdentifier()
{
    const QString language = QLocale::system().uiLanguages().value(0);
    // "C" names no language, neither to ICU nor to a browser.
    if (language.size() < 2)
        return QStringLiteral("en_US_POSIX");
    return QString(language).replace(u'-', u'_');
}

QString dateText(const QDateTime& time, const QString& localeIdentifier)
{
    UErrorCode error = U_ZERO_ERROR;
    const icu::LocalUDateFormatPointer format(udat_open(UDAT_SHORT, UDAT_MEDIUM,
                                                        localeIdentifier.toLatin1().constData(),
                                                        nullptr, -1, nullptr, 0, &error));
    std::array<char16_t, 256> text{};
    const auto length = udat_format(format.getAlias(), UDate(time.toMSecsSinceEpoch()), text.data(),
                                    text.size(), nullptr, &error);
    return U_SUCCESS(error) ? QString::fromUtf16(text.data(), length) : QString();
}
