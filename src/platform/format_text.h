// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <concepts>
#include <initializer_list>

/// One value for a place of a format text: a text as it is, or a whole number
/// in ungrouped Western digits.
class FormatArgument {
public:
    FormatArgument(QString text)
        : m_text(std::move(text))
    {
    }
    FormatArgument(std::integral auto number)
        : m_text(QString::number(number))
    {
    }

    [[nodiscard]] const QString& text() const noexcept { return m_text; }

private:
    QString m_text;
};

/// `format` with every place %1 to %9 replaced by the argument of that number,
/// wherever and however often it stands.
///
/// One pass: what was inserted is never looked at again, so a player may be
/// called "%2". An argument that no place names is dropped; a place without an
/// argument, and every other use of "%", stays as it is.
[[nodiscard]] QString fillFormat(QStringView format,
                                 std::initializer_list<FormatArgument> arguments);
