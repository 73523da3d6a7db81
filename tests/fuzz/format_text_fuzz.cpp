// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The fill of format texts against one that cuts the format at its places.
#include "fuzz.h"
#include "platform/format_text.h"
#include "records.h"

#include <QRegularExpression>

void tryInput(const QByteArray& input)
{
    Pieces pieces(input);
    const QString format = QString::fromUtf8(pieces.bytes());
    const std::int64_t number = pieces.number();
    const QStringList texts{pieces.text(), QString::number(number), pieces.text()};

    static const QRegularExpression place(QStringLiteral("%[1-3]"));
    const QStringList between = format.split(place);
    QString expected = between.first();
    auto found = place.globalMatch(format);
    for (const QString& rest : between.sliced(1))
        expected += texts.at(found.next().captured().at(1).digitValue() - 1) + rest;

    require(fillFormat(format, {texts.at(0), number, texts.at(2)}) == expected,
            "each place is filled once");
    require(fillFormat(format, {}) == format, "without arguments it stays as it is");
}
