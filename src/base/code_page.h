// The 8-bit texts of files: Windows-1252 on every system.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace warhost {

/// UTF-8 of a Windows-1252 text. The five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D) become the
/// control characters of the same number, so that every byte survives the way there and back.
std::string utf8_of_windows_1252(std::string_view bytes);

/// The text's bytes in Windows-1252 up to the first character outside the code page, which `outside` then describes
/// for the user.
struct CodePageText {
    std::string bytes;
    std::optional<std::string> outside;
};

CodePageText windows_1252_of_utf8(std::string_view text);

/// Whether the bytes are well-formed UTF-8.
bool is_utf8(std::string_view bytes);

} // namespace warhost
