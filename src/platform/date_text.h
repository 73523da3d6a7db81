// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// The identifier of the user's locale, language first: "de_DE", "gsw_CH",
/// "en_US_POSIX". The first of the languages that the user wants programs to
/// speak.
[[nodiscard]] QString currentLocaleIdentifier();

/// Returns the identifier of the locale in which the user reads dates and times
/// (`LC_TIME`): "de_DE", "en_US_POSIX" if none is set.
[[nodiscard]] QString timeLocaleIdentifier();

/// `time` in ICU's medium date and short time style for the locale: 25.11.2026,
/// 22:46 in "de_DE". An unknown locale gives ICU's root format; never fails, but
/// an installation of ICU without its data gives an empty text.
[[nodiscard]] QString dateText(const QDateTime& time, const QString& localeIdentifier);
