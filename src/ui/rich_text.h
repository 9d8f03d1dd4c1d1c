// The documents of the two description boxes.
#pragma once

#include <string>
#include <string_view>

namespace warhost {

/// A document: the header (fonts, colours, size), the text as it is, the closing brace. Nothing is escaped: the text
/// may hold control words of its own.
inline std::string rich_text_document(std::string_view text)
{
    constexpr std::string_view header =
        "{\\rtf1\\ansi{\\fonttbl{\\f0\\fswiss\\fcharset0 MS Sans Serif;\\f1\\fswiss\\fcharset0 Courier New;}}"
        "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\\f0\\fs20 ";
    return std::string{header}.append(text).append("}");
}

/// The account of a table's row; a heading stands bold on a line of its own.
inline std::string rich_text_account(std::string_view heading, std::string_view account)
{
    if (heading.empty()) return rich_text_document(account);
    return rich_text_document(std::string{"\\b1 "}.append(heading).append("\\b0\\par ").append(account));
}

} // namespace warhost
