#include "army/armies.h"

#include "army/checked.h"
#include "army/level_bonus.h"

namespace warhost {

namespace {

void calculate_total(Army& army)
{
    std::int32_t sum = 0;
    for (auto const value : army.OptValue) sum = checked_sum(sum, value);
    for (std::size_t i = 0; i < army.MiscValue.size(); ++i) {
        if (army.MiscCheck[i] == 1) sum = checked_sum(sum, army.MiscValue[i]);
    }
    sum = checked_sum(sum, army.RatioBonus);
    army.LevelBonus = level_bonus(army.Level, army.OtherLevel);
    army.TotalMod = checked_sum(sum, army.LevelBonus);
}

} // namespace

void Armies::ClearChoices()
{
    CurArmy.Opt.fill(0);
    CurArmy.OptValue.fill(0);
    CurArmy.MiscCheck.fill(0);
    CurArmy.MiscValue.fill(0);
}

void Armies::CalcTotalNo()
{
    CurArmy.TotalNo = 0;
    for (int row = 0; row < unit_rows; ++row) CurArmy.TotalNo = checked_sum(CurArmy.TotalNo, CurArmy.UnitNum[row]);
}

void Armies::CalcArmyTotal() { calculate_total(CurArmy); }

void Armies::CalcOtherTotal(int selected_tab)
{
    if (selected_tab != tab_side_a && selected_tab != tab_side_b) return;
    Army& other = selected_tab == tab_side_a ? ArmyB : ArmyA;
    Army copy = other;
    calculate_total(copy);
    other = copy;
}

} // namespace warhost
