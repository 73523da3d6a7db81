// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <string>

using nlohmann::json;
using nlohmann::ordered_json;

namespace {

/// The names of the members of a record, in the order in which they are written.
namespace CodingKeys {

constexpr auto id = "id";
constexpr auto gameMode = "gameMode";
constexpr auto playerName = "playerName";
constexpr auto secondPlayerName = "secondPlayerName";
constexpr auto winnerName = "winnerName";
constexpr auto elapsedSeconds = "elapsedSeconds";
constexpr auto failedAttempts = "failedAttempts";
constexpr auto firstPlayerScore = "firstPlayerScore";
constexpr auto secondPlayerScore = "secondPlayerScore";
constexpr auto amountCards = "amountCards";
constexpr auto amountRounds = "amountRounds";

} // namespace CodingKeys

/// Reads the members of one object; remembers whether all were as they must be.
class RecordReader {
public:
    explicit RecordReader(const json& object)
        : m_object(object)
        , m_isComplete(object.is_object())
    {
    }

    [[nodiscard]] bool isComplete() const noexcept { return m_isComplete; }

    template <class Value>
    void require(const char* name, Value& target)
    {
        const json* const member = find(name);
        if (member == nullptr || !read(*member, target))
            m_isComplete = false;
    }

    template <class Value>
    void allow(const char* name, std::optional<Value>& target)
    {
        const json* const member = find(name);
        if (member == nullptr)
            return;
        Value value{};
        if (read(*member, value))
            target = std::move(value);
        else
            m_isComplete = false;
    }

private:
    /// The member, or null if it is missing or holds null.
    const json* find(const char* name) const
    {
        if (!m_object.is_object())
            return nullptr;
        const auto member = m_object.find(name);
        return member == m_object.end() || member->is_null() ? nullptr : &*member;
    }

    static bool read(const json& member, QString& target)
    {
        if (!member.is_string())
            return false;
        target = QString::fromStdString(member.get_ref<const std::string&>());
        return true;
    }

    static bool read(const json& member, std::int64_t& target)
    {
        if (member.is_number_unsigned()) {
            const auto number = member.get<std::uint64_t>();
            target = static_cast<std::int64_t>(number);
            return target >= 0;
        }
        if (member.is_number_integer()) {
            target = member.get<std::int64_t>();
            return true;
        }
        if (!member.is_number_float())
            return false;
        // 2^63 is the first double above the range; -2^63 is the last within it.
        constexpr double limit = 9223372036854775808.0;
        const double number = member.get<double>();
        if (number != std::floor(number) || number < -limit || number >= limit)
            return false;
        target = static_cast<std::int64_t>(number);
        return true;
    }

    static bool read(const json& member, QUuid& target)
    {
        QString text;
        if (!read(member, text) || !isUuid(text))
            return false;
        target = QUuid::fromString(text);
        return true;
    }

    /// QUuid itself also takes braces and garbage after the last digit.
    static bool isUuid(const QString& text)
    {
        static constexpr qsizetype length = 36;
        if (text.size() != length)
            return false;
        for (qsizetype i = 0; i < length; ++i) {
            const char16_t unit = text[i].unicode();
            const bool isDigit = (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') ||
                                 (unit >= u'A' && unit <= u'F');
            const bool isHyphenPlace = i == 8 || i == 13 || i == 18 || i == 23;
            if (isHyphenPlace ? unit != u'-' : !isDigit)
                return false;
        }
        return true;
    }

    const json& m_object;
    bool m_isComplete;
};

/// How deep lists and objects lie in each other, as the brackets outside of texts tell.
std::int64_t nestingDepth(const QByteArray& bytes)
{
    std::int64_t depth = 0;
    std::int64_t deepest = 0;
    bool isInText = false;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char byte = bytes[i];
        if (byte == '"')
            isInText = !isInText;
        else if (isInText && byte == '\\')
            ++i;
        else if (!isInText && (byte == '[' || byte == '{'))
            deepest = std::max(deepest, ++depth);
        else if (!isInText && (byte == ']' || byte == '}'))
            --depth;
    }
    return deepest;
}

std::optional<HighscoreEntry> decodeEntry(const json& object)
{
    RecordReader reader(object);
    HighscoreEntry entry;
    reader.require(CodingKeys::id, entry.id);
    reader.require(CodingKeys::gameMode, entry.gameMode);
    reader.require(CodingKeys::playerName, entry.playerName);
    reader.allow(CodingKeys::secondPlayerName, entry.secondPlayerName);
    reader.allow(CodingKeys::winnerName, entry.winnerName);
    reader.require(CodingKeys::elapsedSeconds, entry.elapsedSeconds);
    reader.require(CodingKeys::failedAttempts, entry.failedAttempts);
    reader.allow(CodingKeys::firstPlayerScore, entry.firstPlayerScore);
    reader.allow(CodingKeys::secondPlayerScore, entry.secondPlayerScore);
    reader.require(CodingKeys::amountCards, entry.amountCards);
    reader.require(CodingKeys::amountRounds, entry.amountRounds);
    return reader.isComplete() ? std::optional(std::move(entry)) : std::nullopt;
}

ordered_json encodeEntry(const HighscoreEntry& entry)
{
    ordered_json object;
    const auto put = [&object](const char* name, const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, QString>)
            object[name] = value.toStdString();
        else
            object[name] = value;
    };
    const auto putIfPresent = [&put](const char* name, const auto& value) {
        if (value)
            put(name, *value);
    };
    put(CodingKeys::id, entry.id.toString(QUuid::WithoutBraces).toUpper());
    put(CodingKeys::gameMode, entry.gameMode);
    put(CodingKeys::playerName, entry.playerName);
    putIfPresent(CodingKeys::secondPlayerName, entry.secondPlayerName);
    putIfPresent(CodingKeys::winnerName, entry.winnerName);
    put(CodingKeys::elapsedSeconds, entry.elapsedSeconds);
    put(CodingKeys::failedAttempts, entry.failedAttempts);
    putIfPresent(CodingKeys::firstPlayerScore, entry.firstPlayerScore);
    putIfPresent(CodingKeys::secondPlayerScore, entry.secondPlayerScore);
    put(CodingKeys::amountCards, entry.amountCards);
    put(CodingKeys::amountRounds, entry.amountRounds);
    return object;
}

} // namespace

std::optional<HighscoreEntries> decodeHighscores(const QByteArray& bytes)
{
    // The parser takes a NUL for the end of the text.
    if (bytes.contains('\0'))
        return std::nullopt;
    // Millions of lists in each other take minutes and gigabytes, and tell of no game.
    constexpr std::int64_t deepestOfUse = 1'000'000;
    if (nestingDepth(bytes) > deepestOfUse)
        return std::nullopt;
    const json array = json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (!array.is_array())
        return std::nullopt;
    HighscoreEntries entries;
    entries.reserve(array.size());
    for (const json& object : array) {
        auto entry = decodeEntry(object);
        if (!entry)
            return std::nullopt;
        entries.push_back(*std::move(entry));
    }
    return entries;
}

QByteArray encodeHighscores(const HighscoreEntries& entries)
{
    ordered_json array = ordered_json::array();
    for (const HighscoreEntry& entry : entries)
        array.push_back(encodeEntry(entry));
    // A text from outside may hold half a surrogate pair; QString makes it a
    // question mark on the way to UTF-8, so dump() cannot fail.
    return QByteArray::fromStdString(array.dump(4)) + '\n';
}
