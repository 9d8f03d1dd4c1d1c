#include "army/armies.h"

#include "army/level_bonus.h"
#include "base/checked.h"

#include <cstddef>
#include <cstdint>

namespace warhost {

namespace {

/// The total modifier without the experience bonus.
std::int32_t total_without_level(Army const& army)
{
    std::int32_t sum = 0;
    for (auto const value : army.OptValue) sum = checked_sum(sum, value);
    for (std::size_t i = 0; i < army.MiscValue.size(); ++i) {
        if (army.MiscCheck[i] == 1) sum = checked_sum(sum, army.MiscValue[i]);
    }
    return checked_sum(sum, army.RatioBonus);
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

void Armies::CalcArmyTotal()
{
    std::int32_t const sum = total_without_level(CurArmy);
    CurArmy.LevelBonus = level_bonus(CurArmy.Level, CurArmy.OtherLevel);
    CurArmy.TotalMod = checked_sum(sum, CurArmy.LevelBonus);
}

void Armies::CalcOtherTotal(int Side)
{
    Army& other = opposing(Side);
    std::int16_t const bonus = level_bonus(other.Level, other.OtherLevel);
    other.TotalMod = checked_sum(total_without_level(other), bonus);
    other.LevelBonus = bonus;
}

} // namespace warhost
