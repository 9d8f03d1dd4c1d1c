#include "ui/rich_text_reader.h"

#include "ui/rich_text.h"

#include <gtest/gtest.h>

#include <string>

namespace warhost {

namespace {

/// The text with bold runs in brackets and a bar between paragraphs.
std::string told(std::string_view document)
{
    std::string story;
    for (auto const& paragraph : read_rich_text(document)) {
        for (auto const& run : paragraph) story += run.bold ? "[" + run.text + "]" : run.text;
        story += '|';
    }
    return story.substr(0, story.rfind('|'));
}

std::string repeated(std::string_view part, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i) text += part;
    return text;
}

} // namespace

TEST(RichText, shows_text_bold_and_lines_and_skips_all_other_markup)
{
    std::array<std::string, 3> const rows[] = {
        {"the form's own", rich_text_document("\\b1 Twice!\\b0\\par 5% of <b>all</b>. "),
         "[Twice!]|5% of <b>all</b>. "},
        {"the form's empty one", rich_text_document(""), ""},
        {"one blank belongs to a word", R"({\rtf1 a\b  b\b0 c})", "a[ b]c"},
        {"a group takes its look back", R"({\rtf1 a{\b b{\b0 c}d}e})", "a[b]c[d]e"},
        {"escaped", R"({\rtf1 \\\b\{\}})", "\\[{}]"},
        {"unknown words and numbers", R"({\rtf1\foo\bar-12 x\baz7y})", "xy"},
        {"unknown groups, nested", R"({\rtf1 a{\*\gen {b}\b c\par}d{\info e{\b f}}g})", "adg"},
        {"bytes in hex", R"({\rtf1 \'80\'ea\'9f\'zz})", "\u20ac\u00ea\u0178zz"},
        {"raw bytes of the code page", "{\\rtf1 \x80\xe9\t\x01\x7f}", "\u20ac\u00e9\t"},
        {"raw bytes of UTF-8", "{\\rtf1 \u20ac\u00e9\U0001F600}", "\u20ac\u00e9\U0001F600"},
        {"line ends", "{\\rtf1 a\r\nb\\par\r\nc}", "ab|c"},
        {"a negative number at the end", "{\\rtf1 a\\x-1", "a"},
        {"nothing behind the end", R"({\rtf1 a}b\par{c)", "a"}};
    for (auto const& [story, document, expected] : rows) EXPECT_EQ(told(document), expected) << story;
}

TEST(RichText, damaged_and_enormous_documents_are_read_to_their_end)
{
    std::string const whole = rich_text_document(R"(\b1 A\'e9\u-10179?{\*\x y}\b0\par \bin9 z)");
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(read_rich_text(std::string_view{whole}.substr(0, length)).empty()) << length;

    int const many = 100'000; // no EXPECT_EQ below: it would print them
    EXPECT_TRUE(told(repeated("{", many) + "a" + repeated("}", many)) == "a");
    EXPECT_TRUE(told("{" + repeated("\\b99999999999999999999 a\\b0", many) + "}") == "[" + repeated("a", many) + "]");
    EXPECT_TRUE(told("{" + repeated("a\\b b\\b0 ", many) + "}") == repeated("a[b]", many));
}

} // namespace warhost
