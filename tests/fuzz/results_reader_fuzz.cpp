// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of the results accepts what a slow and obvious one accepts, which builds
// the whole tree first; what it accepts is JSON to Qt's parser, too, and once written is
// read as it was.
#include "fuzz.h"
#include "highscores/highscore_file.h"

#include <QJsonDocument>
#include <QRegularExpression>
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
    if (!read(value, text) || !form.match(text).hasMatch())
        return false;
    field = QUuid(text);
    return true;
}

bool read(const json& value, std::int64_t& field)
{
    if (value.is_number_float()) {
        const auto number = value.get<double>();
        if (std::trunc(number) != number || number < -0x1p63 || number >= 0x1p63)
            return false;
    } else if (!value.is_number() ||
               (value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX)) {
        return false;
    }
    field = value.get<std::int64_t>();
    return true;
}

template <class Field>
bool read(const json& value, std::optional<Field>& field)
{
    return value.is_null() || read(value, field.emplace());
}

/// All fields or nothing; a missing member is like one of null.
template <class... Fields>
bool readAll(const json& record, Fields&&... fields)
{
    return record.is_object() && (read(record.value(fields.first, json()), fields.second) && ...);
}

std::optional<HighscoreEntries> slowlyDecoded(const QByteArray& bytes)
{
    const json list = json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (!list.is_array() || bytes.contains('\0'))
        return std::nullopt;
    HighscoreEntries entries;
    for (const json& record : list) {
        HighscoreEntry& entry = entries.emplace_back();
        const auto field = [](const char* name, auto& value) {
            return std::pair<const char*, decltype(value)>(name, value);
        };
        if (!readAll(record, field("id", entry.id), field("gameMode", entry.gameMode),
                     field("playerName", entry.playerName),
                     field("secondPlayerName", entry.secondPlayerName),
                     field("winnerName", entry.winnerName),
                     field("elapsedSeconds", entry.elapsedSeconds),
                     field("failedAttempts", entry.failedAttempts),
                     field("firstPlayerScore", entry.firstPlayerScore),
                     field("secondPlayerScore", entry.secondPlayerScore),
                     field("amountCards", entry.amountCards),
                     field("amountRounds", entry.amountRounds)))
            return std::nullopt;
    }
    return entries;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const auto entries = decodeHighscores(bytes);
    const auto expected = slowlyDecoded(bytes);
    require(entries.has_value() == expected.has_value(), "the same files are accepted");
    if (!entries)
        return 0;
    const QByteArray written = encodeHighscores(*entries);
    require(written == encodeHighscores(*expected), "the same is read");
    const auto readBack = decodeHighscores(written);
    require(readBack && encodeHighscores(*readBack) == written, "what is written is read back");
    QJsonParseError error;
    QJsonDocument::fromJson(bytes, &error);
    // Qt's parser has limits of its own: to depth, and numbers so small that they count as 0.
    const bool isTooSmall = error.error == QJsonParseError::IllegalNumber &&
                            bytes.mid(error.offset - 400, 800).toLower().contains("e-");
    require(error.error == QJsonParseError::NoError ||
                error.error == QJsonParseError::DeepNesting || isTooSmall,
            "what is accepted is JSON");
    return 0;
}
