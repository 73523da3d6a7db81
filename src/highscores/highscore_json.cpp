// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

using nlohmann::json;
using nlohmann::ordered_json;

namespace {

/// A member of a record in the file, and the field that it stands for.
struct CodingKey {
    std::string_view name;
    std::variant<QUuid HighscoreEntry::*, QString HighscoreEntry::*,
                 std::optional<QString> HighscoreEntry::*, std::int64_t HighscoreEntry::*,
                 std::optional<std::int64_t> HighscoreEntry::*>
        field;
};

/// In the order in which they are written.
constexpr std::array CodingKeys{
    CodingKey{"id", &HighscoreEntry::id},
    CodingKey{"gameMode", &HighscoreEntry::gameMode},
    CodingKey{"playerName", &HighscoreEntry::playerName},
    CodingKey{"secondPlayerName", &HighscoreEntry::secondPlayerName},
    CodingKey{"winnerName", &HighscoreEntry::winnerName},
    CodingKey{"elapsedSeconds", &HighscoreEntry::elapsedSeconds},
    CodingKey{"failedAttempts", &HighscoreEntry::failedAttempts},
    CodingKey{"firstPlayerScore", &HighscoreEntry::firstPlayerScore},
    CodingKey{"secondPlayerScore", &HighscoreEntry::secondPlayerScore},
    CodingKey{"amountCards", &HighscoreEntry::amountCards},
    CodingKey{"amountRounds", &HighscoreEntry::amountRounds},
};

template <class Field>
constexpr bool isOptional = false;
template <class Value>
constexpr bool isOptional<std::optional<Value>> = true;

/// What no field takes: a list, an object, a truth value, a number that is not whole.
struct Unusable {};

/// A value of the file; null is the first.
using Value = std::variant<std::monostate, Unusable, std::int64_t, const std::string*>;

Value wholeNumber(double number)
{
    // 2^63 is the first double above the range; -2^63 is the last within it.
    constexpr double limit = 9223372036854775808.0;
    if (number != std::floor(number) || number < -limit || number >= limit)
        return Unusable{};
    return static_cast<std::int64_t>(number);
}

/// QUuid itself also takes braces and garbage after the last digit.
bool isUuid(std::string_view text)
{
    constexpr std::string_view form = "hhhhhhhh-hhhh-hhhh-hhhh-hhhhhhhhhhhh";
    return std::ranges::equal(text, form, [](char letter, char wanted) {
        const bool isDigit = (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'f') ||
                             (letter >= 'A' && letter <= 'F');
        return wanted == 'h' ? isDigit : letter == wanted;
    });
}

bool take(const Value& value, QString& field)
{
    const auto* const text = std::get_if<const std::string*>(&value);
    if (text != nullptr)
        field = QString::fromStdString(**text);
    return text != nullptr;
}

bool take(const Value& value, QUuid& field)
{
    const auto* const text = std::get_if<const std::string*>(&value);
    if (text == nullptr || !isUuid(**text))
        return false;
    field = QUuid::fromString(QLatin1String((*text)->data(), qsizetype((*text)->size())));
    return true;
}

bool take(const Value& value, std::int64_t& field)
{
    const auto* const number = std::get_if<std::int64_t>(&value);
    if (number != nullptr)
        field = *number;
    return number != nullptr;
}

template <class Inner>
bool take(const Value& value, std::optional<Inner>& field)
{
    return take(value, field.emplace());
}

/// Takes the records as the parser meets them, and stops it at the first thing that no
/// file of results holds. No tree is built: the records alone take memory, however large
/// and nested what else is in the file may be.
class RecordReader {
public:
    [[nodiscard]] HighscoreEntries takeEntries() { return std::move(m_entries); }

    // What the parser calls.
    bool null() { return value({}); }
    bool boolean(bool) { return value(Unusable{}); }
    bool number_integer(std::int64_t number) { return value(number); }
    bool number_unsigned(std::uint64_t number)
    {
        const auto signedNumber = static_cast<std::int64_t>(number);
        return value(signedNumber < 0 ? Value(Unusable{}) : Value(signedNumber));
    }
    bool number_float(double number, const std::string&) { return value(wholeNumber(number)); }
    bool string(const std::string& text) { return value(&text); }
    static bool binary(const std::vector<std::uint8_t>&) { return false; } // not in JSON
    bool start_array(std::size_t) { return m_depth++ == 0 || value(Unusable{}, 1); }
    bool end_array()
    {
        --m_depth;
        return true;
    }
    bool start_object(std::size_t)
    {
        if (m_depth++ != list)
            return value(Unusable{}, 1);
        m_entries.emplace_back();
        m_found.fill(Found::nothing);
        return true;
    }
    bool key(const std::string& name)
    {
        if (m_depth == record)
            m_key = std::size_t(std::ranges::find(CodingKeys, name, &CodingKey::name) -
                                CodingKeys.begin());
        return true;
    }
    bool end_object()
    {
        if (--m_depth != list)
            return true;
        for (std::size_t i = 0; i < CodingKeys.size(); ++i) {
            const bool mayBeAbsent = std::visit(
                [](auto field) {
                    return isOptional<std::decay_t<decltype(HighscoreEntry().*field)>>;
                },
                CodingKeys[i].field);
            if (m_found[i] == Found::unusable || (m_found[i] == Found::nothing && !mayBeAbsent))
                return false;
        }
        return true;
    }
    static bool parse_error(std::size_t, const std::string&, const json::exception&)
    {
        return false;
    }

private:
    /// How deep in lists and objects the parser is: in none, in the one list, in a
    /// record of it; what is deeper belongs to a member that no field takes.
    enum Depth : std::size_t { outside, list, record };

    /// What the last member of a name held; null is nothing.
    enum class Found { nothing, usable, unusable };

    /// A value at the depth `m_depth` - `inside`.
    bool value(const Value& value, std::size_t inside = 0)
    {
        const std::size_t depth = m_depth - inside;
        if (depth == record && m_key < CodingKeys.size()) {
            m_found[m_key] = std::visit(
                [&](auto field) {
                    auto& target = m_entries.back().*field;
                    target = std::remove_reference_t<decltype(target)>();
                    if (std::holds_alternative<std::monostate>(value))
                        return Found::nothing;
                    return take(value, target) ? Found::usable : Found::unusable;
                },
                CodingKeys[m_key].field);
        }
        return depth >= record;
    }

    HighscoreEntries m_entries{};
    std::array<Found, CodingKeys.size()> m_found{};
    std::size_t m_key = CodingKeys.size();
    std::size_t m_depth = outside;
};

template <class Field>
void put(ordered_json& object, std::string_view name, const Field& field)
{
    if constexpr (isOptional<Field>) {
        if (field)
            put(object, name, *field);
    } else if constexpr (std::is_same_v<Field, QUuid>) {
        put(object, name, field.toString(QUuid::WithoutBraces).toUpper());
    } else if constexpr (std::is_same_v<Field, QString>) {
        object[std::string(name)] = field.toStdString();
    } else {
        object[std::string(name)] = field;
    }
}

} // namespace

std::optional<HighscoreEntries> decodeHighscores(const QByteArray& bytes)
{
    // The parser takes a NUL for the end of the text.
    if (bytes.contains('\0'))
        return std::nullopt;
    RecordReader reader;
    if (!json::sax_parse(bytes.begin(), bytes.end(), &reader))
        return std::nullopt;
    return reader.takeEntries();
}

QByteArray encodeHighscores(const HighscoreEntries& entries)
{
    if (entries.empty())
        return "[]\n";
    // One at a time: all of them as a tree take many times the memory of the text.
    QByteArray bytes;
    for (const HighscoreEntry& entry : entries) {
        ordered_json object;
        for (const CodingKey& key : CodingKeys)
            std::visit([&](auto field) { put(object, key.name, entry.*field); }, key.field);
        // A text from outside may hold half a surrogate pair; QString makes it a
        // question mark on the way to UTF-8, so dump() cannot fail.
        const std::string list = ordered_json::array({object}).dump(4);
        constexpr std::string_view begin = "[";
        constexpr std::string_view end = "\n]";
        const std::string_view record =
            std::string_view(list).substr(begin.size(), list.size() - begin.size() - end.size());
        bytes += bytes.isEmpty() ? '[' : ',';
        bytes.append(record.data(), qsizetype(record.size()));
    }
    return bytes += "\n]\n";
}
