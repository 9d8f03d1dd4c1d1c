#include "files/army_format.h"

#include "army/same_army.h"
#include "base/code_page.h"
#include "caught.h"

#include <gtest/gtest.h>
#include <string>

namespace warhost {
namespace {

using namespace std::string_literals;

bool contains(std::string const& text, std::string const& part) { return text.find(part) != text.npos; }

std::string many(char byte, std::size_t count) { return std::string(count, byte); }

/// A file whose every reserved part holds something: stretches, lists of one and two dimensions, an empty list whose
/// other dimension is huge, texts.
std::string full_file()
{
    std::string const no_text = many('\0', 2);
    std::string texts = "\x04\0Orcs"s;
    for (int row = 0; row < 31; ++row) texts += row == 1 ? "\x03\0a\x81\xE9"s : row == 30 ? "\x02\0zz"s : no_text;
    std::string const lists = "\1\0\2\0\0\0\1\0\0\0abcdefgh"s                 // two numbers
                              "\2\0\2\0\0\0\0\0\0\0\1\0\0\0\5\0\0\0ABCDEFGH"s // two by one
                              "\2\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF\0\0\0\0"s +
                              many('q', 4) +                                // none by many
                              "\1\0\2\0\0\0\0\0\0\0\1\0x\2\0yz"s + "\0\0"s; // two texts; never sized
    return texts + many('u', 124) + many('r', 372) + many('n', 4) + many('o', 202) + many('v', 404) + many('c', 202) +
           many('m', 404) + many('s', 4) + many('b', 2) + many('t', 4) + many('w', 6) + lists + many('e', 2) +
           many('f', 14) + "\0\0\x80\x3F\0\0\x20\x40"s + many('g', 16) + "\1\0\x90"s + no_text + no_text + "\2\0ok"s;
}

TEST(ArmyFormat, puts_every_field_at_its_offset)
{
    Army army;
    army.Name = "Orcs";
    army.UnitType[0] = "\u20ACa";
    army.UnitType[30] = "end";
    std::string expected = "\4\0Orcs\2\0\x80"s + "a" + many('\0', 58) + "\3\0end"s + many('\0', 1790);
    constexpr std::size_t texts = 4 + 2 + 3;
    ASSERT_EQ(expected.size(), 1854 + texts);
    // clang-format off
    auto const at = [&](int offset, std::string const& part) { expected.replace(offset + texts, part.size(), part); };
    army.UnitNum[1] = -2; at(64 + 4, "\xFE\xFF\xFF\xFF");
    army.UnitNum[30] = 0x01020304; at(64 + 120, "\4\3\2\1");
    army.TotalNo = 0x01020304; at(64 + 496, "\4\3\2\1");
    army.Opt[0] = army.Opt[100] = -1; at(64 + 500, "\xFF\xFF"); at(64 + 700, "\xFF\xFF");
    army.OptValue[0] = army.OptValue[100] = -3; at(64 + 702, "\xFD\xFF\xFF\xFF"); at(64 + 1102, "\xFD\xFF\xFF\xFF");
    army.MiscCheck[0] = army.MiscCheck[100] = 1; at(64 + 1106, "\1"); at(64 + 1306, "\1");
    army.MiscValue[0] = army.MiscValue[100] = 5; at(64 + 1308, "\5"); at(64 + 1708, "\5");
    army.RatioBonus = 20; at(64 + 1716, "\x14");
    army.TotalMod = -1; at(64 + 1718, "\xFF\xFF\xFF\xFF");
    army.LevelBonus = 17; at(1806, "\x11");
    army.Level = 1; at(1822, "\0\0\x80\x3F"s);
    army.OtherLevel = 2.5F; at(1826, "\0\0\x20\x40"s);
    // clang-format on
    EXPECT_EQ(encode_army(army), expected);
    EXPECT_TRUE(same(decode_army(expected), army));
}

TEST(ArmyFormat, carries_everything_through_and_ignores_what_follows_the_record)
{
    EXPECT_EQ(encode_army(Army{}), many('\0', 1854));
    Army const army = decode_army(full_file() + "more");
    EXPECT_EQ(encode_army(army), full_file());
    EXPECT_EQ(army.Name + army.UnitType[1] + army.UnitType[30], "Orcsa\u0081\u00E9zz");
    EXPECT_EQ(std::pair(army.Level, army.OtherLevel), std::pair(1.0F, 2.5F));
}

TEST(ArmyFormat, reports_where_a_file_ended_wherever_it_was_cut)
{
    std::string const file = full_file();
    for (std::size_t length = 0; length < file.size(); ++length) {
        Failure const failure = caught(decode_army, file.substr(0, length));
        ASSERT_EQ(failure.number, number_of(Fault::file_too_short)) << length;
        ASSERT_TRUE(contains(failure.text, "ends at byte " + std::to_string(length) + ", but ")) << failure.text;
    }
    EXPECT_TRUE(contains(caught(decode_army, file.substr(0, 4)).text,
                         "but 4 bytes of the army's name should follow at byte 2"));
    EXPECT_TRUE(contains(caught(decode_army, file.substr(0, file.size() - 1)).text, "2 bytes of the reserved texts"));
}

TEST(ArmyFormat, rejects_counts_that_the_file_cannot_hold)
{
    for (auto const& list : {"\1\0\xFF\xFF\xFF\x7F\0\0\0\0"s, "\1\0\xFF\xFF\xFF\xFF\0\0\0\0"s, "\xFF\xFF"s,
                             "\2\0\0\0\1\0\0\0\0\0\0\0\1\0\0\0\0\0"s,                      // 2^16 by 2^16
                             "\3\0\0\0\0\x80\0\0\0\0\0\0\0\x80\0\0\0\0\4\0\0\0\0\0\0\0"s}) // 2^64 in all
        for (std::size_t const offset : {1792, 1802}) // of a list of numbers, and of a list of texts
            EXPECT_EQ(caught(decode_army, many('\0', 1854).replace(offset, 2, list)).number,
                      number_of(Fault::file_too_short));
}

TEST(ArmyFormat, rejects_texts_that_no_file_can_hold)
{
    Army army;
    army.Name = many('x', 65535);
    EXPECT_EQ(caught(encode_army, army).number, 0);
    army.Name += 'x';
    EXPECT_EQ(caught(encode_army, army).number, number_of(Fault::text_too_long));
    army.Name = "Zhuk";
    army.UnitType[2] = "\U0001F432";
    Failure const failure = caught(encode_army, army);
    EXPECT_EQ(failure.number, number_of(Fault::outside_code_page));
    EXPECT_TRUE(contains(failure.text, "unit type #3 contains \U0001F432 (U+1F432)")) << failure.text;
}

TEST(CodePage, maps_every_byte_both_ways)
{
    std::string every;
    for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
    EXPECT_EQ(windows_1252_of_utf8(utf8_of_windows_1252(every)).bytes, every);
    EXPECT_EQ(utf8_of_windows_1252("a\x80\x81\x85\x8D\x8F\x90\x99\x9D\x9F\xA0\xE9\xFF"),
              "a\u20AC\u0081\u2026\u008D\u008F\u0090\u2122\u009D\u0178\u00A0\u00E9\u00FF");
    for (char const* outside : {"\u0080", "\u0100", "\uFFFD", "\xFF", "a\xC3", "\xE0\x80\x80", "\xED\xA0\x80"})
        EXPECT_TRUE(windows_1252_of_utf8(outside).outside.has_value()) << outside;
    EXPECT_EQ(windows_1252_of_utf8("a\U0010FFFFbc").outside, "\U0010FFFF (U+10FFFF)");
    for (char const* invalid : {"\xED\xBF\xBF", "\xF4\x90\x80\x80"})
        EXPECT_EQ(windows_1252_of_utf8(invalid).outside, "an invalid character");
}

} // namespace
} // namespace warhost
