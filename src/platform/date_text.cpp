// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/date_text.h"

#include <QLocale>
#include <array>
#include <unicode/udat.h>

namespace {

/// "C" names no language, neither to ICU nor to a browser.
QString identifierOf(QString locale)
{
    return locale.size() < 2 ? QStringLiteral("en_US_POSIX") : locale.replace(u'-', u'_');
}

} // namespace

QString currentLocaleIdentifier()
{
    return identifierOf(QLocale::system().uiLanguages().value(0));
}

QString timeLocaleIdentifier()
{
    // QLocale::system() formats dates for this locale, but does not name it.
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (const QString locale = qEnvironmentVariable(variable); !locale.isEmpty())
            return identifierOf(QLocale(locale).name());
    }
    return identifierOf({});
}

QString dateText(const QDateTime& time, const QString& localeIdentifier)
{
    // ICU's own idea of the time zone misses some that the system knows, so the
    // time is handed to it as if it were one of the zone zero.
    UErrorCode error = U_ZERO_ERROR;
    const icu::LocalUDateFormatPointer format(udat_open(UDAT_SHORT, UDAT_MEDIUM,
                                                        localeIdentifier.toLatin1().constData(),
                                                        u"UTC", -1, nullptr, 0, &error));
    const UDate moment = UDate(time.toMSecsSinceEpoch()) + 1000.0 * time.offsetFromUtc();
    std::array<char16_t, 256> text{};
    const auto length =
        udat_format(format.getAlias(), moment, text.data(), text.size(), nullptr, &error);
    return U_SUCCESS(error) ? QString::fromUtf16(text.data(), length) : QString();
}
