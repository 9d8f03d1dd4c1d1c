// Reads the documents of the two description boxes: what to show, free of markup.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace warhost {

/// Adjacent characters in the same style.
struct RichTextRun {
    std::string text; // UTF-8; no ASCII control character but the tab
    bool bold = false;

    bool operator==(RichTextRun const&) const = default;
};

/// Empty for an empty line.
using RichTextParagraph = std::vector<RichTextRun>;

/// The paragraphs of a document, at least one. Knows groups, \b, \par, \'hh and escaped characters, which are all that
/// the form's documents use, and skips every other control word with its number and one blank, every group that begins
/// with one, and every group that begins with \*. Bytes above 7F are UTF-8 when the whole document is, else
/// Windows-1252. Ends with the outermost group. Takes any bytes and never fails but for want of memory; its time grows
/// with the length only, and nested groups do not nest calls.
std::vector<RichTextParagraph> read_rich_text(std::string_view document);

} // namespace warhost
