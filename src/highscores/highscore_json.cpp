// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highscores/highscore_file.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

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

/// The parser refuses a number beyond the range of its type for fractions, even in a
/// member that no field takes, and a double rounds. So this type has no value: a number
/// is read from its text.
struct UnreadNumber {
    UnreadNumber() = default;
    UnreadNumber(double number)
        : ignored(number)
    {
    }
    operator double&() { return ignored; }
    operator double() const { return 0; } // finite

    double ignored;
};

using json = nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, UnreadNumber>;

/// Returns the value of a JSON number that has a fraction, an exponent or many digits.
/// Exact: Unusable if it is not an integer of 64 bits.
Value exactNumber(const std::string& text)
{
    const std::size_t mantissaSize = std::min(text.find_first_of("eE"), text.size());
    // The largest exponents that cannot overflow below stand for those beyond them.
    constexpr long long maxExponent = 1LL << 60;
    const bool hasExponent = mantissaSize < text.size();
    long long exponent = hasExponent ? std::strtoll(&text[mantissaSize + 1], nullptr, 10) : 0;
    exponent = std::clamp(exponent, -maxExponent, maxExponent);
    std::string digits;
    for (std::size_t i = 0; i < mantissaSize; ++i) {
        if (text[i] >= '0' && text[i] <= '9')
            digits += text[i];
        else if (i > 0) // the decimal point, in whatever locale
            exponent -= static_cast<long long>(mantissaSize - i - 1);
    }
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.empty())
        return std::int64_t{0};
    for (; digits.back() == '0'; digits.pop_back())
        ++exponent;
    constexpr long long maxDigits = 19;
    if (exponent < 0 || exponent + std::ssize(digits) > maxDigits)
        return Unusable{};
    digits.append(static_cast<std::size_t>(exponent), '0');
    if (text.front() == '-')
        digits.insert(0, 1, '-');
    std::int64_t number = 0;
    const auto end = digits.data() + digits.size();
    const bool isWithinRange = std::from_chars(digits.data(), end, number).ec == std::errc();
    return isWithinRange ? Value(number) : Value(Unusable{});
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
    // QString::fromStdString() would drop a U+FEFF that the text begins with.
    using Decoder = QStringDecoder;
    if (text != nullptr)
        field = Decoder(Decoder::Utf8, Decoder::Flag::ConvertInitialBom)(**text);
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
    bool number_float(UnreadNumber, const std::string& text) { return value(exactNumber(text)); }
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
