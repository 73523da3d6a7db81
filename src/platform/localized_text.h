// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/format_text.h"
#include <QString>
#include <QStringList>
#include <QTranslator>

/// The text of `key` in the language in use; the key itself where the table
/// has no such text, so that a gap shows instead of hiding.
[[nodiscard]] QString localizedText(const QString& key);
[[nodiscard]] QString localizedText(const char* key);

/// The text of `key` as a format, filled with `arguments` (see fillFormat()).
[[nodiscard]] QString localizedText(const char* key,
                                    std::initializer_list<FormatArgument> arguments);

/// Loads from `folder` the first catalogue that the user's languages name, in
/// their order, else the English one. False if not even that can be read; every
/// text is then its key.
///
/// `languages` are tags as QLocale::uiLanguages() gives them ("de-AT", "de").
[[nodiscard]] bool loadCatalogue(QTranslator& translator, const QString& folder,
                                 const QStringList& languages);
