#include "army/value_conversion.h"

#include <cmath>
#include <gtest/gtest.h>

namespace warhost {

NumberFormat const point{".", ","};
NumberFormat const comma{",", "."};
NumberFormat const spaced{",", "\u202F"};

TEST(LeadingNumber, is_the_longest_prefix_that_is_a_number)
{
    std::pair<char const*, double> const cases[] = {
        {"+5", 5},       {"5,20", 5},    {"1 2", 12},  {"3 to 4", 3},  {"abc", 0},     {"", 0},
        {"2.5", 2.5},    {"1e3", 1000},  {"&H10", 16}, {"&hfFg", 255}, {"&o178", 15},  {"& H 1 0", 16},
        {"-&H10", 0},    {"&", 0},       {"&H", 0},    {".6", 0.6},    {"-.5", -0.5},  {"1.e3", 1000},
        {"2 d20", 2e20}, {"25D-1", 2.5}, {"1e", 1},    {"1e+", 1},     {"1e2e3", 100}, {"1.2.3", 1.2},
        {"-", 0},        {"+", 0},       {".", 0},     {"--5", 0},     {"5-3", 5},     {"\t1\n2", 12},
        {"1\r2", 1},     {"\r1", 0},     {"inf", 0},   {"nan", 0},     {"0x10", 0},    {"0e99999999999999999999", 0}};
    for (auto const& [text, value] : cases) EXPECT_DOUBLE_EQ(leading_number(text), value) << text;
}

TEST(WholeNumbers, are_limited_and_then_rounded_with_halves_to_even)
{
    // clang-format off
    struct { char const* text; int as_int; int as_long; } const cases[] = {
        {"", 0, 0}, {"-", 0, 0}, {"40000", 32000, 40000}, {"-40000", -32000, -40000}, {"32000.4", 32000, 32000},
        {"32020", 32000, 32020}, {"0.5", 0, 0}, {"1.5", 2, 2}, {"2.5", 2, 2}, {"3.5", 4, 4}, {"-2.5", -2, -2},
        {"-3.5", -4, -4}, {"2.4", 2, 2}, {"2.6", 3, 3}, {"3000000000", 32000, 2000000000},
        {"-3000000000", -32000, -2000000000}, {"1999999999.5", 32000, 2000000000}, {"12 345", 12345, 12345},
        {"2 d20", 32000, 2000000000}, {"1e999", 32000, 2000000000}, {"-1e999", -32000, -2000000000}, {"1e-999", 0, 0},
    };
    // clang-format on
    for (auto const& [text, as_int, as_long] : cases) {
        EXPECT_EQ(TextToInt(text), as_int) << text;
        EXPECT_EQ(TextToLong(text), as_long) << text;
    }
}

TEST(TextToSingle, prefers_the_users_number_format)
{
    // clang-format off
    struct { char const* text; NumberFormat format; float value; } const cases[] = {
        {"5", point, 5}, {"", point, 0}, {"x", point, 0}, {"12abc", point, 12}, {"7.5", point, 7.5F},
        {"2,5", point, 25}, {"1,000", point, 1000}, {" 4 ", point, 4}, {"-1,000.5", point, -1000.5F},
        {"2,5", comma, 2.5F}, {"1.000", comma, 1000}, {"1.000,25", comma, 1000.25F}, {"12abc", comma, 12},
        {"2,5x", comma, 2}, {"-2,5", comma, -2.5F}, {"7.5", spaced, 7.5F}, {"1\u202F000,5", spaced, 1000.5F},
        {"0", comma, 0}, {"1,5E+20", comma, 1.5e20F},
    };
    // clang-format on
    for (auto const& [text, format, value] : cases) EXPECT_EQ(TextToSingle(text, format), value) << text;
    EXPECT_TRUE(std::isfinite(TextToSingle("1e99", point)));
    EXPECT_TRUE(std::isfinite(TextToSingle("-1e999", comma)));
}

TEST(Texts, of_numbers_round_their_decimal_value_with_halves_away_from_zero)
{
    EXPECT_EQ(SignedText(0) + SignedText(17) + SignedText(-3) + SignedText(INT32_MIN), "+0+17-3-2147483648");
    for (auto const& [value, text] : {std::pair{0.0F, "0"}, {1, "1"}, {2.5F, "2,5"}, {0.1F, "0,1"}, {-20, "-20"}})
        EXPECT_EQ(general_text(value, comma), text);
    for (auto const& [size, text] :
         {std::pair{1665, "16,7"}, {1664, "16,6"}, {-1665, "-16,7"}, {-4, "0,0"}, {0, "0,0"}})
        EXPECT_EQ(hundredths_as_tenths(size, comma), text);
    std::pair<double, char const*> const cases[] = {{16.65, "16.7"},  {0, "0.0"},       {110, "110.0"}, {8.75, "8.8"},
                                                    {12.25, "12.3"},  {12.35, "12.4"},  {0.05, "0.1"},  {0.049, "0.0"},
                                                    {99.95, "100.0"}, {1.0 / 3, "0.3"}, {2.5, "2.5"},   {51.2, "51.2"},
                                                    {16.65F, "16.6"}};
    for (auto const& [value, text] : cases) EXPECT_EQ(one_decimal(value, point), text) << value;
}

} // namespace warhost
