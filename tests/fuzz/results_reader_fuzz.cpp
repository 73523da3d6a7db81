// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of the results accepts what a slow and obvious one accepts, which builds
// the whole tree first, and its numbers from their digits; and what it has accepted is,
// once written, read as it was.
#include "fuzz.h"
#include "highscores/highscore_file.h"

#include <QRegularExpression>
#include <algorithm>
#include <nlohmann/json.hpp>

using nlohmann::json;

namespace {

/// A tree would round numbers, so each is an object in it: its text under this key.
const QByteArray numberKey = QUuid::createUuid().toByteArray();

std::string withNumbersAsObjects(const QByteArray& bytes)
{
    static const QRegularExpression stringOrNumber(
        QStringLiteral(R"("(?:[^"\\]|\\.)*+"|(-?(?:0|[1-9]\d*)(?:\.\d+)?(?:[eE][+-]?\d+)?))"));
    QByteArray result;
    qsizetype end = 0;
    for (const auto& match : stringOrNumber.globalMatch(QString::fromLatin1(bytes))) {
        result += bytes.sliced(end, match.capturedStart() - end);
        end = match.capturedEnd();
        const QByteArray token = match.captured().toLatin1();
        result += match.hasCaptured(1) ? "{\"" + numberKey + "\":\"" + token + "\"}" : token;
    }
    return (result + bytes.sliced(end)).toStdString();
}

bool read(const json& value, QString& field)
{
    if (value.is_string()) // not at the start, where a U+FEFF would be dropped
        field = QString::fromStdString('|' + value.get<std::string>()).sliced(1);
    return value.is_string();
}

bool read(const json& value, QUuid& field)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}\\z"));
    QString text;
    const bool isId = read(value, text) && form.match(text).hasMatch();
    field = QUuid(text);
    return isId;
}

bool read(const json& value, std::int64_t& field)
{
    if (!value.is_object() || !value.contains(numberKey.constData()))
        return false;
    static const QRegularExpression form(QStringLiteral(R"((-?)(\d+)\.?(\d*)[eE]?([+-]?\d*))"));
    const auto parts = form.match(QString::fromStdString(value.at(numberKey.constData())));
    QString digits = parts.captured(2) + parts.captured(3);
    double exponent = parts.captured(4).toDouble() - double(parts.capturedLength(3));
    for (; digits.endsWith(u'0'); digits.chop(1))
        ++exponent;
    field = 0;
    if (digits.isEmpty())
        return true;
    bool isWithinRange = exponent >= 0;
    if (isWithinRange)
        field = (parts.captured(1) + digits + QString(qsizetype(std::min(exponent, 20.0)), u'0'))
                    .toLongLong(&isWithinRange);
    return isWithinRange;
}

template <class Field>
bool read(const json& value, std::optional<Field>& field)
{
    return value.is_null() || read(value, field.emplace());
}

/// All fields or nothing; a missing member is like one of null.
bool read(const json& record, HighscoreEntry& entry)
{
    const auto has = [&record](const char* name, auto& field) {
        return read(record.value(name, json()), field);
    };
    return record.is_object() && has("id", entry.id) && has("gameMode", entry.gameMode) &&
           has("playerName", entry.playerName) && has("secondPlayerName", entry.secondPlayerName) &&
           has("winnerName", entry.winnerName) && has("elapsedSeconds", entry.elapsedSeconds) &&
           has("failedAttempts", entry.failedAttempts) &&
           has("firstPlayerScore", entry.firstPlayerScore) &&
           has("secondPlayerScore", entry.secondPlayerScore) &&
           has("amountCards", entry.amountCards) && has("amountRounds", entry.amountRounds);
}

std::optional<HighscoreEntries> slowlyDecoded(const QByteArray& bytes)
{
    const json list = json::parse(withNumbersAsObjects(bytes), nullptr, false);
    HighscoreEntries entries;
    if (!list.is_array() || bytes.contains('\0') ||
        !std::ranges::all_of(
            list, [&entries](const json& record) { return read(record, entries.emplace_back()); }))
        return std::nullopt;
    return entries;
}

} // namespace

void tryInput(const QByteArray& input)
{
    const auto entries = decodeHighscores(input);
    const auto expected = slowlyDecoded(input);
    require(entries.has_value() == expected.has_value(), "the same files are accepted");
    if (!entries)
        return;
    const QByteArray written = encodeHighscores(*entries);
    require(written == encodeHighscores(*expected), "the same is read");
    const auto readBack = decodeHighscores(written);
    require(readBack && encodeHighscores(*readBack) == written, "what is written is read back");
}
