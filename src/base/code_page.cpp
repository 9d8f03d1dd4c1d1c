#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace warhost {

namespace {

/// Characters of the bytes 80 to 9F; every other byte is the character with the same number.
constexpr std::array<char32_t, 32> upper_controls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned first_upper_control = 0x80;

/// Returns the character that starts at text[at] and moves `at` past it; nothing when no well-formed one starts there.
std::optional<char32_t> next_character(std::string_view text, std::size_t& at)
{
    struct Form {
        unsigned first, last, bytes;
        char32_t lowest;
    };
    constexpr std::array forms{Form{0x00, 0x7F, 1, 0}, Form{0xC2, 0xDF, 2, 0x80}, Form{0xE0, 0xEF, 3, 0x800},
                               Form{0xF0, 0xF4, 4, 0x10000}};
    unsigned const lead = static_cast<unsigned char>(text[at]);
    auto const* const form =
        std::find_if(forms.begin(), forms.end(), [&](Form const& f) { return lead >= f.first && lead <= f.last; });
    if (form == forms.end() || text.size() - at < form->bytes) return {};
    char32_t character = form->bytes == 1 ? lead : lead & (0x7FU >> form->bytes);
    for (std::size_t i = 1; i < form->bytes; ++i) {
        unsigned const byte = static_cast<unsigned char>(text[at + i]);
        if ((byte & 0xC0U) != 0x80) return {};
        character = (character << 6) | (byte & 0x3FU);
    }
    bool const surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < form->lowest || character > 0x10FFFF || surrogate) return {};
    at += form->bytes;
    return character;
}

/// UTF-8 of a character of the code page.
void append_utf8(char32_t character, std::string& text)
{
    auto const tail = [&](unsigned shift) { return static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += {static_cast<char>(0xC0 | (character >> 6)), tail(0)};
    } else {
        text += {static_cast<char>(0xE0 | (character >> 12)), tail(6), tail(0)};
    }
}

std::optional<char> byte_of(char32_t character)
{
    if (character < first_upper_control || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    auto const* const found = std::find(upper_controls.begin(), upper_controls.end(), character);
    if (found == upper_controls.end()) return {};
    return static_cast<char>(first_upper_control + static_cast<unsigned>(found - upper_controls.begin()));
}

std::string code_point_name(char32_t character)
{
    std::string digits;
    for (auto rest = static_cast<std::uint32_t>(character); rest != 0 || digits.size() < 4; rest /= 16) {
        digits.insert(digits.begin(), "0123456789ABCDEF"[rest % 16]);
    }
    return "U+" + digits;
}

} // namespace

std::string utf8_of_windows_1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (char const c : bytes) {
        unsigned const byte = static_cast<unsigned char>(c);
        bool const mapped = byte >= first_upper_control && byte < 0xA0;
        append_utf8(mapped ? upper_controls[byte - first_upper_control] : byte, text);
    }
    return text;
}

CodePageText windows_1252_of_utf8(std::string_view text)
{
    CodePageText result;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t const start = at;
        auto const character = next_character(text, at);
        auto const byte = character ? byte_of(*character) : std::nullopt;
        if (!byte) {
            result.outside =
                character ? std::string{text.substr(start, at - start)} + " (" + code_point_name(*character) + ")"
                          : "an invalid character";
            return result;
        }
        result.bytes += *byte;
    }
    return result;
}

bool is_utf8(std::string_view bytes)
{
    std::size_t at = 0;
    while (at < bytes.size()) {
        if (!next_character(bytes, at)) return false;
    }
    return true;
}

} // namespace warhost
