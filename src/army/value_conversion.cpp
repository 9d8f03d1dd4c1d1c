#include "army/value_conversion.h"

#include "base/characters.h"
#include "base/limits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace warhost {

namespace {

double whole_number(std::string_view digits, int base)
{
    double value = 0;
    for (char const c : digits) {
        auto const digit = hex_digit(c);
        if (!digit || *digit >= base) break;
        value = value * base + *digit;
    }
    return value;
}

/// A decimal number found in a text: its characters, in the form that std::from_chars reads, and where it ended.
struct Decimal {
    std::string characters;
    std::size_t end = 0;
    bool any_digits = false;
};

Decimal longest_decimal(std::string_view text)
{
    Decimal found;
    std::size_t at = 0;
    auto const take_digits = [&](std::string& to) {
        std::size_t const first = at;
        while (at < text.size() && is_digit(text[at])) to += text[at++];
        return at > first;
    };
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        if (text[at] == '-') found.characters = "-";
        ++at;
    }
    found.any_digits = take_digits(found.characters);
    if (at < text.size() && text[at] == '.') {
        found.characters += '.';
        ++at;
        found.any_digits = take_digits(found.characters) || found.any_digits;
    }
    found.end = at;
    if (found.any_digits && at < text.size() && (lower(text[at]) == 'e' || lower(text[at]) == 'd')) {
        std::string exponent = "e";
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) exponent += text[at++];
        if (take_digits(exponent)) {
            found.characters += exponent;
            found.end = at;
        }
    }
    return found;
}

/// Whether a number outside the range of double is too large rather than too small: decided by the position of its
/// first nonzero digit, counted from the decimal point, plus the exponent.
bool is_large(std::string_view characters)
{
    auto const exponent_at = std::min(characters.find('e'), characters.size());
    auto const mantissa = characters.substr(0, exponent_at);
    auto const point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
    auto const first = static_cast<double>(mantissa.find_first_of("123456789"));
    double exponent = 0;
    if (exponent_at < characters.size()) {
        auto digits = characters.substr(exponent_at + 1);
        bool const negative = digits.front() == '-';
        if (negative || digits.front() == '+') digits.remove_prefix(1);
        exponent = whole_number(digits, 10) * (negative ? -1 : 1);
    }
    return point - first + exponent > 0;
}

double decimal_value(std::string const& characters)
{
    double value = 0;
    auto const result = std::from_chars(characters.data(), characters.data() + characters.size(), value);
    if (result.ec != std::errc::result_out_of_range) return value;
    if (!is_large(characters)) return 0;
    double const infinity = std::numeric_limits<double>::infinity();
    return characters.front() == '-' ? -infinity : infinity;
}

double half_to_even(double value, double limit) { return std::nearbyint(std::clamp(value, -limit, limit)); }

float to_single(double value)
{
    double const limit = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -limit, limit));
}

bool starts_with_at(std::string_view text, std::size_t at, std::string_view part)
{
    return !part.empty() && text.substr(at, part.size()) == part;
}

/// The whole text as a number in the regional format; nothing when it is not one.
std::optional<double> regional_number(std::string_view text, NumberFormat const& format)
{
    text = without_outer(" \t", text);
    std::string plain;
    bool whole_part = true;
    for (std::size_t at = 0; at < text.size();) {
        if (whole_part && starts_with_at(text, at, format.decimal)) {
            plain += '.';
            at += format.decimal.size();
            whole_part = false;
        } else if (whole_part && starts_with_at(text, at, format.group)) {
            at += format.group.size();
        } else if (text[at] == '.') {
            return {};
        } else {
            if (lower(text[at]) == 'e' || lower(text[at]) == 'd') whole_part = false;
            plain += text[at++];
        }
    }
    Decimal const number = longest_decimal(plain);
    if (!number.any_digits || number.end != plain.size()) return {};
    return decimal_value(number.characters);
}

} // namespace

std::string_view without_outer(std::string_view blanks, std::string_view text)
{
    auto const first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

double leading_number(std::string_view text)
{
    std::string packed{text};
    std::erase_if(packed, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
    if (packed.size() > 1 && packed[0] == '&') {
        char const base = lower(packed[1]);
        if (base == 'h') return whole_number(std::string_view{packed}.substr(2), 16);
        if (base == 'o') return whole_number(std::string_view{packed}.substr(2), 8);
        return 0;
    }
    Decimal const number = longest_decimal(packed);
    return number.any_digits ? decimal_value(number.characters) : 0;
}

std::int16_t TextToInt(std::string_view text)
{
    return static_cast<std::int16_t>(half_to_even(leading_number(text), field_limit));
}

std::int32_t TextToLong(std::string_view text)
{
    return static_cast<std::int32_t>(half_to_even(leading_number(text), 2000000000));
}

float TextToSingle(std::string_view text, NumberFormat const& format)
{
    float const leading = to_single(leading_number(text));
    float const regional = to_single(regional_number(text, format).value_or(0));
    return regional != 0 ? regional : leading;
}

std::string SignedText(std::int64_t n) { return (n < 0 ? "" : "+") + plain_text(n); }

std::string plain_text(std::int64_t n) { return std::to_string(n); }

std::string grouped_text(std::int64_t n, NumberFormat const& format)
{
    std::string text = plain_text(n);
    for (auto end = static_cast<std::ptrdiff_t>(text.size()) - 3; end > 0; end -= 3) {
        text.insert(static_cast<std::size_t>(end), format.group);
    }
    return text;
}

std::string with_decimal_separator(std::string number, NumberFormat const& format)
{
    if (auto const point = number.find('.'); point != std::string::npos) number.replace(point, 1, format.decimal);
    return number;
}

std::string general_text(float value, NumberFormat const& format)
{
    if (value == 0 || !std::isfinite(value)) return "0";
    float const size = std::fabs(value);
    bool const plain = size >= 1e-5F && size < 1e15F;
    std::array<char, 64> buffer{};
    auto const result = std::to_chars(buffer.begin(), buffer.end(), value,
                                      plain ? std::chars_format::fixed : std::chars_format::scientific);
    std::string text{buffer.begin(), result.ptr};
    if (auto const exponent = text.find('e'); exponent != std::string::npos) text[exponent] = 'E';
    return with_decimal_separator(text, format);
}

std::string tenths_text(std::int64_t tenths, NumberFormat const& format)
{
    std::string const sign = tenths < 0 ? "-" : "";
    std::int64_t const size = std::abs(tenths);
    return sign + plain_text(size / 10) + format.decimal + plain_text(size % 10);
}

std::string hundredths_as_tenths(std::int64_t hundredths, NumberFormat const& format)
{
    return tenths_text((hundredths + (hundredths < 0 ? -5 : 5)) / 10, format);
}

std::string one_decimal(double value, NumberFormat const& format)
{
    std::int64_t const decimals = 1'000'000'000'000;
    std::int64_t const rounded = std::llround(std::fabs(value) * static_cast<double>(decimals));
    std::int64_t const tenths = (rounded / (decimals / 10)) + (rounded / (decimals / 100) % 10 >= 5 ? 1 : 0);
    return tenths_text(value < 0 ? -tenths : tenths, format);
}

} // namespace warhost
