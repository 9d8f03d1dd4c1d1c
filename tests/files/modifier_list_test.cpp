#include "files/modifier_list.h"

#include <gtest/gtest.h>
#include <string>

namespace warhost {
namespace {

/// "name/topic/low..high/initial" of each entry.
std::string read(std::string const& bytes)
{
    std::string text;
    ModifierList list{bytes};
    while (auto const entry = list.next())
        text += (text.empty() ? "" : " ") + entry->name + "/" + std::to_string(entry->help_topic) + "/" +
                std::to_string(entry->low) + ".." + std::to_string(entry->high) + "/" + std::to_string(entry->initial);
    return text;
}

TEST(ModifierList, reads_two_lines_as_one_entry)
{
    // clang-format off
    struct { std::string bytes; char const* entries; } const cases[] = {
        {"a\r\n3\r\n", "a/0/3..3/3"}, {"a\n1,3\nb\n3,1\n", "a/0/1..3/1 b/0/1..3/3"}, {"a\r\n-2,2", "a/0/-2..2/-2"},
        {"a\n12|2\nb\n|4\nc\n7|1,3\n", "a/12/2..2/2 b/0/4..4/4 c/7/1..3/1"},
        {"a\n1|2|3,4,5\n", "a/1/2..4/2"}, // the first "|", then the first ","
        {"a\n1,2|3,4\n", "a/1/3..4/3"}, // a "," before the "|" belongs to the topic
        {"a\n40000\nb\n-40000,1\n", "a/0/32000..32000/32000 b/0/-32000..1/-32000"}, {"  a b \n x \n", "a b/0/0..0/0"},
        {"\ta\n1\n", "\ta/0/1..1/1"}, // only blanks are cut off
        {"a\n1\nb\n\nc\n1\n", "a/0/1..1/1 b/0/0..0/0"}, // reading ends after an entry without values,
        {"a\n5|\nb\n1\n", "a/5/0..0/0"},
        {"\n1\nb\n1\n", "/0/1..1/1"}, // without a name,
        {"a\n1,\nb\n1\n", "a/0/0..1/1"}, // or with nothing behind its comma
        {"  \n1\nb\n1\n", "/0/1..1/1 b/0/1..1/1"}, // but the name is judged with its blanks
        {"a\n1\nb\n", "a/0/1..1/1"}, // a last entry without its values line is none
        {"a\n1\nb", "a/0/1..1/1"},
        {"a\n1\n\n\n", "a/0/1..1/1 /0/0..0/0"}, // one whose two lines are there is one, empty or not
        {"", ""}, {"\xEF\xBB\xBF", ""}, {"\xEF\xBB\xBF" "a\n1\n", "a/0/1..1/1"},
        {"\xC3\xA9\n1\n", "\u00E9/0/1..1/1"}, // UTF-8
        {"\xE9\x80\n1\n", "\u00E9\u20AC/0/1..1/1"}, // no UTF-8
    };
    // clang-format on
    for (auto const& [bytes, entries] : cases) EXPECT_EQ(read(bytes), entries) << bytes;
}

} // namespace
} // namespace warhost
