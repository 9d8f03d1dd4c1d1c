#include "army/modifier_options.h"
#include "battle/dice.h"
#include "battle/losses.h"
#include "battle/outcome_table.h"
#include "battle/victor_table.h"
#include "ui/rich_text.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace warhost {
namespace {

TEST(Tables, keep_their_texts_to_the_letter_double_blanks_and_last_blanks_included)
{
    std::ifstream file{TEXTS_FILE};
    auto const expect_next = [&](std::string_view text) {
        std::string line;
        EXPECT_TRUE(std::getline(file, line));
        EXPECT_EQ(text, line);
    };
    for (auto const& row : options) expect_next(std::string{row.caption}.append("|").append(row.tag));
    for (auto const& row : outcome_table) expect_next(row.account);
    for (auto const& row : victor_table) expect_next(rich_text_account(row.heading, row.account));
    EXPECT_EQ(file.peek(), std::ifstream::traits_type::eof());
}

TEST(OutcomeTable, steps_exactly_at_each_margin)
{
    std::array<int, 3> const rows[] = {{0, 0, 10},   {1, 2, 10},   {3, 4, 15},      {5, 6, 20},   {7, 8, 25},
                                       {9, 10, 30},  {11, 13, 45}, {14, 16, 50},    {17, 20, 65}, {21, 23, 75},
                                       {24, 27, 85}, {28, 30, 90}, {31, 10000, 100}};
    constexpr int bonuses[][2] = {{0, 0},  {4, 0},  {5, 1},  {9, 1},  {10, 2}, {14, 2},
                                  {15, 3}, {19, 3}, {20, 4}, {24, 4}, {25, 5}, {64000, 5}};
    for (auto const& [first, last, percent] : rows) {
        EXPECT_EQ(outcome_of(first), outcome_of(last)) << first;
        EXPECT_NE(outcome_of(last), outcome_of(last + 1)) << first;
        EXPECT_EQ(outcome_of(first)->percent, percent) << first;
    }
    EXPECT_EQ(outcome_of(10001), nullptr);
    for (auto const& [margin, bonus] : bonuses) EXPECT_EQ(casualty_roll_bonus(margin), bonus) << margin;
}

TEST(VictorTable, takes_the_first_row_that_applies)
{
    enum Checked { none, minus, plus, both };
    constexpr int no_row = 13;
    // clang-format off
    struct { int roll, bonus; Checked boxes; int row; } const cases[] = {
        {6, 5, none, 1}, {1, 0, plus, 6}, {6, 0, plus, 1}, {-4, 0, minus, 2}, {1, 0, both, 2}, {20, 0, none, 3},
        {15, 0, minus, 3}, {25, 5, none, 3}, {25, 0, plus, 4}, {20, 0, both, 4}, {1, 0, minus, 5}, {-999, 0, minus, 5},
        {1, 2, none, 6}, {-999, 0, none, 6}, {1, -5, both, 5}, {2, 0, none, 7}, {5, 0, none, 7}, {6, 0, none, 8},
        {11, 0, none, 8}, {12, 0, none, 9}, {15, 0, none, 9}, {16, 0, none, 10}, {19, 0, none, 10}, {20, 0, plus, 11},
        {999, 0, plus, 11}, {20, 5, none, 12}, {999, 0, none, 12}, {20, 6, minus, 12}, {-1000, 0, none, no_row},
        {1000, 0, both, no_row}, {1000, 980, none, 3}, {-1000, -1001, none, 1}, {30000, -30000, none, no_row},
        {-1000, 0, minus, no_row}, {1000, 0, plus, no_row}, {1000, 0, none, no_row},
    };
    constexpr int ranges[][2] = {{100, 100}, {110, 110}, {2, 2}, {0, 0}, {100, 100}, {90, 90},
                                 {20, 80}, {10, 60}, {10, 30}, {5, 20}, {2, 2}, {5, 5}};
    // clang-format on
    for (auto const& [roll, bonus, boxes, row] : cases) {
        SCOPED_TRACE(testing::Message() << roll << " with " << bonus << ", boxes " << boxes);
        bool const minus5 = boxes == minus || boxes == both, plus5 = boxes == plus || boxes == both;
        auto const* const found = victor_row_of({roll, roll - effective_bonus(bonus, minus5, plus5), minus5, plus5});
        ASSERT_EQ(found == nullptr ? no_row : found - victor_table.data() + 1, row);
        if (row == no_row) continue;
        EXPECT_EQ(std::pair(found->low, found->high), std::pair(ranges[row - 1][0], ranges[row - 1][1]));
        EXPECT_EQ(found->box, row <= 2 ? Box::minus5 : row <= 4 ? Box::plus5 : Box::none);
    }
}

TEST(Losses, round_halves_away_from_zero_and_never_stop_at_zero)
{
    std::array<int, 3> const cases[] = {{25, 10, 3},    {15, 10, 2},    {5, 10, 1},    {4, 10, 0},
                                        {250, 45, 113}, {0, 100, 0},    {10, 110, 11}, {-25, 10, -3},
                                        {-4, 10, 0},    {-15, 90, -14}, {100, -5, -5}, {2000000000, 100, 2000000000}};
    for (auto const& [soldiers, percent, loss] : cases) EXPECT_EQ(row_loss(soldiers, percent), loss) << soldiers;
}

TEST(Dice, reach_both_ends_of_their_range_and_nothing_beyond)
{
    constexpr double last = 0x1.FFFFFFFEp-1; // the largest value of 32 random bits
    // clang-format off
    struct Fixed { double value; double next() const { return value; } };
    struct { Fixed random; int low, high, expected; } cases[] = {
        {{0}, 1, 20, 1}, {{0.049}, 1, 20, 1}, {{0.05}, 1, 20, 2}, {{0.5}, 1, 20, 11}, {{0.949}, 1, 20, 19},
        {{0.95}, 1, 20, 20}, {{last}, 1, 20, 20}, {{0}, 20, 80, 20}, {{last}, 20, 80, 80}, {{last}, 0, 0, 0},
    };
    // clang-format on
    for (auto& [random, low, high, expected] : cases) EXPECT_EQ(roll_between(random, low, high), expected);
}

} // namespace
} // namespace warhost
