// Reads the documents of the two description boxes: what to show, free of markup.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace warhost {

struct RichTextColour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(RichTextColour const&) const = default;
};

/// Neighbouring characters of one look.
struct RichTextRun {
    std::string text; // UTF-8; no ASCII control character but the tab
    bool bold = false;
    std::string font; // as the font table calls it, at most 64 bytes; empty: not in the table
    double points = 12;
    std::optional<RichTextColour> colour; // nothing: the reader's own text colour

    bool operator==(RichTextRun const&) const = default;
};

/// Empty for an empty line.
using RichTextParagraph = std::vector<RichTextRun>;

/// The paragraphs of a document, at least one. Knows groups, \b, \plain, \par, \line, \tab, \f, \fs, \cf, \deff, the
/// font and colour tables, \'hh, \u with \uc, \bin and escaped characters; skips every other control word with its
/// number and one blank, and every destination that holds no text of the document. Bytes above 7F are UTF-8 when the
/// whole document is, else Windows-1252. Ends with the outermost group. Takes any bytes and never fails; its time
/// grows with the length only, and nested groups do not nest calls.
std::vector<RichTextParagraph> read_rich_text(std::string_view document);

} // namespace warhost
