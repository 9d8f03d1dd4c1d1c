// Kinds of ASCII characters, the same in every locale.
#pragma once

#include <optional>

namespace warhost {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool is_letter(char c) { return lower(c) >= 'a' && lower(c) <= 'z'; }

/// 0 to 15; nothing for any other character.
constexpr std::optional<int> hex_digit(char c)
{
    if (is_digit(c)) return c - '0';
    if (lower(c) >= 'a' && lower(c) <= 'f') return lower(c) - 'a' + 10;
    return {};
}

} // namespace warhost
