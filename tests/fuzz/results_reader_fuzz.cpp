// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of the results accepts what a slow and obvious one accepts, which builds
// the whole tree first; and what it has accepted is, once written, read as it was.
#include "fuzz.h"
#include "highscores/highscore_file.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

using nlohmann::json;

namespace {

bool read(const json& value, QString& field)
{
    if (value.is_string())
        field = QString::fromStdString(value.get<std::string>());
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
    const double number = value.is_number_float() ? value.get<double>() : 0;
    if (!value.is_number() || std::trunc(number) != number || number < -0x1p63 || number >= 0x1p63)
        return false;
    field = value.get<std::int64_t>();
    return !value.is_number_unsigned() || field >= 0; // one beyond the range comes out negative
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
    const json list = json::parse(bytes.begin(), bytes.end(), nullptr, false);
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
