// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/format_text.h"
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <cstdint>

/// The text of `key` in the language in use; the key itself where the table
/// has no such text, so that a gap shows instead of hiding.
[[nodiscard]] QString localizedText(const QString& key);
[[nodiscard]] QString localizedText(const char* key);

/// The text of `key` as a format, filled with `arguments` (see fillFormat()).
[[nodiscard]] QString localizedText(const char* key,
                                    std::initializer_list<FormatArgument> arguments);

/// The same for a text that speaks of `count` things: in the language's form for
/// that number ("1 round", "2 rounds"), which the catalogue has as numerus forms.
[[nodiscard]] QString localizedCount(const char* key, std::int64_t count,
                                     std::initializer_list<FormatArgument> arguments);

/// The texts of the game and those of Qt's own controls in one language, in use while
/// this object lives.
class Catalogues {
public:
    /// Installs from `folder` the first catalogue that `languages` name, in their order,
    /// else the English one, and Qt's own in the same language. False if not even the
    /// English one can be read; every text is then its key.
    ///
    /// `languages` are tags as QLocale::uiLanguages() returns them ("de-AT", "de"). A
    /// catalogue is named by as much of a tag as it serves: "pt" all of Portuguese,
    /// "zh_Hans" what is written in simplified characters.
    [[nodiscard]] bool install(const QString& folder, const QStringList& languages);

private:
    QTranslator m_ours{};
    QTranslator m_controls{};
};
