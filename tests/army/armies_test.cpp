#include "army/armies.h"

#include "army/level_bonus.h"
#include "caught.h"

#include <gtest/gtest.h>
#include <limits>

namespace warhost {
namespace {

constexpr auto overflow = number_of(Fault::overflow);

TEST(LevelBonus, follows_the_rounded_quotient_of_the_levels)
{
    float const infinite = std::numeric_limits<float>::infinity();
    float const nan = std::numeric_limits<float>::quiet_NaN();
    // clang-format off
    struct { float level, other; int bonus; } const cases[] = {
        {10, 5, 1}, {3, 2, 1}, {5, 2, 1}, {7, 2, 5}, {20, 1, 20}, {1, 20, 0}, {6, 6, 0}, {9, 0, 0}, {0, 0, 0},
        {4.95F, 3.3F, 1}, {1.49F, 1, 0}, {0.99F, 1, 0}, {3, 1, 3}, {4, 1, 5}, {5, 1, 7}, {6, 1, 9}, {7, 1, 11},
        {8, 1, 13}, {9, 1, 15}, {10, 1, 17}, {10.5F, 1, 17}, {10.6F, 1, 20}, {11, 1, 20}, {-4, -2, 1}, {-4, 2, 0},
        {3e38F, 1e-38F, 20}, {nan, 1, 0}, {1, nan, 0}, {infinite, 1, 0}, {5, infinite, 0},
    };
    // clang-format on
    for (auto const& [level, other, bonus] : cases)
        EXPECT_EQ(level_bonus(level, other), bonus) << level << " : " << other;
}

TEST(Armies, recount_eight_rows_up_to_the_one_that_overflows)
{
    Armies armies;
    for (int row = 0; row < record_units; ++row) armies.CurArmy.UnitNum[row] = row + 1;
    armies.CurArmy.UnitNum[2] = -100;
    armies.CalcTotalNo();
    EXPECT_EQ(armies.CurArmy.TotalNo, -67);
    armies.CurArmy.UnitNum = {2000000000, 147483647, 1, -5};
    EXPECT_EQ(caught([&] { armies.CalcTotalNo(); }).number, overflow);
    EXPECT_EQ(armies.CurArmy.TotalNo, 2147483647);
}

TEST(Armies, total_every_category_the_ticked_misc_values_and_both_bonuses)
{
    Armies armies;
    auto& army = armies.CurArmy;
    army.OptValue.front() = 1;
    army.OptValue.back() = 20;
    for (int row : {0, 1, 2, 100}) army.MiscValue[row] = 300;
    army.MiscCheck[1] = army.MiscCheck[100] = 1;
    army.MiscCheck[2] = 2; // neither ticked nor unticked: does not count
    army.RatioBonus = 4000;
    army.Level = 7;
    army.OtherLevel = 2;
    armies.ArmyA = armies.ArmyB = army;
    armies.CalcArmyTotal();
    EXPECT_EQ(army.LevelBonus, 5);
    EXPECT_EQ(army.TotalMod, 4626);
    for (int const tab : {1, 2, 3}) {
        armies.ArmyA.TotalMod = armies.ArmyB.TotalMod = 0;
        armies.CalcOtherTotal(tab);
        EXPECT_EQ(armies.ArmyA.TotalMod, tab == 2 ? 4626 : 0) << tab;
        EXPECT_EQ(armies.ArmyB.TotalMod, tab == 1 ? 4626 : 0) << tab;
    }
    army.OptValue[7] = armies.ArmyB.OptValue[7] = 2147483647;
    EXPECT_EQ(caught([&] { armies.CalcArmyTotal(); }).number, overflow);
    EXPECT_EQ(caught([&] { armies.CalcOtherTotal(1); }).number, overflow);
    EXPECT_EQ(army.TotalMod, 4626);
    EXPECT_EQ(armies.ArmyB.TotalMod, 0);
}

TEST(Armies, clear_every_choice_and_nothing_else)
{
    Armies armies;
    auto& army = armies.CurArmy;
    army.Name = "Orcs";
    army.RatioBonus = 3;
    Army const expected = army;
    army.Opt.fill(-1);
    army.OptValue.fill(1);
    army.MiscCheck.fill(1);
    army.MiscValue.fill(1);
    armies.ClearChoices();
    EXPECT_EQ(army, expected);
}

} // namespace
} // namespace warhost
