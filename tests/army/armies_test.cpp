#include "army/armies.h"

#include "army/level_bonus.h"
#include "caught.h"

#include <cmath>
#include <gtest/gtest.h>

namespace warhost {

TEST(LevelBonus, follows_the_rounded_quotient_of_the_levels)
{
    std::tuple<float, float, int> const cases[] = {
        {10, 5, 1}, {3, 2, 1},           {5, 2, 1},      {7, 2, 5},        {20, 1, 20},      {1, 20, 0},
        {6, 6, 0},  {9, 0, 0},           {0, 0, 0},      {4.95F, 3.3F, 1}, {1.49F, 1, 0},    {0.99F, 1, 0},
        {3, 1, 3},  {4, 1, 5},           {5, 1, 7},      {6, 1, 9},        {7, 1, 11},       {8, 1, 13},
        {9, 1, 15}, {10, 1, 17},         {10.5F, 1, 17}, {10.6F, 1, 20},   {11, 1, 20},      {-4, -2, 1},
        {-4, 2, 0}, {3e38F, 1e-38F, 20}, {NAN, 1, 0},    {1, NAN, 0},      {INFINITY, 1, 0}, {5, INFINITY, 0}};
    for (auto const& [level, other, bonus] : cases)
        EXPECT_EQ(level_bonus(level, other), bonus) << level << " : " << other;
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
    EXPECT_EQ(std::tuple(army.LevelBonus, army.TotalMod), std::tuple(5, 4626));
    for (int const Side : {side_a, side_b}) {
        armies.ArmyA.TotalMod = armies.ArmyB.TotalMod = 0;
        armies.CalcOtherTotal(Side);
        EXPECT_EQ(armies.ArmyA.TotalMod, Side == side_b ? 4626 : 0) << Side;
        EXPECT_EQ(armies.ArmyB.TotalMod, Side == side_a ? 4626 : 0) << Side;
    }
    // Only the experience bonus makes the sum too large: the other side keeps both its figures.
    armies.ArmyB.OptValue[7] = 2147483647 - 4622;
    armies.ArmyB.LevelBonus = 1;
    EXPECT_EQ(caught([&] { armies.CalcOtherTotal(1); }).number, number_of(Fault::overflow));
    EXPECT_EQ(std::tuple(armies.ArmyB.LevelBonus, armies.ArmyB.TotalMod), std::tuple(1, 0));
    army.OptValue[7] = armies.ArmyB.OptValue[7] = 2147483647;
    EXPECT_EQ(caught([&] { armies.CalcArmyTotal(); }).number, number_of(Fault::overflow));
    EXPECT_EQ(caught([&] { armies.CalcOtherTotal(1); }).number, number_of(Fault::overflow));
    EXPECT_EQ(std::pair(army.TotalMod, armies.ArmyB.TotalMod), std::pair(4626, 0));
}

} // namespace warhost
