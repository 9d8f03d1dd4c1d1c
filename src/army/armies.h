// The three army records and the arithmetic that runs on them.
#pragma once

#include "army/army.h"

#include <string_view>
#include <utility>

namespace warhost {

/// The values of a Side parameter.
inline constexpr int side_a = 1;
inline constexpr int side_b = 2;

/// Side A is Index 0, Side B Index 1.
constexpr std::string_view side_name(int Index) { return Index == 0 ? "Side A" : "Side B"; }

/// Makes `to` a copy of `from`. Throws std::bad_alloc and then leaves `to` as it was.
inline void copy_army(Army const& from, Army& to)
{
    Army copy = from;
    to = std::move(copy);
}

/// The records of both sides and CurArmy, the working copy of one of them.
/// Every operation that throws leaves the member it was computing as it was.
struct Armies {
    Army ArmyA;
    Army ArmyB;
    Army CurArmy;

    Army& of_side(int Side) { return Side == side_a ? ArmyA : ArmyB; }
    Army& opposing(int Side) { return Side == side_a ? ArmyB : ArmyA; }

    /// Zeroes CurArmy's Opt, OptValue, MiscCheck and MiscValue.
    void ClearChoices();

    /// Recounts CurArmy.TotalNo over rows 0 to 7. Throws the overflow Failure at the row whose running sum leaves
    /// 32 bits; TotalNo then keeps the sum of the rows before it.
    void CalcTotalNo();

    /// LevelBonus and TotalMod of CurArmy. Throws the overflow Failure.
    void CalcArmyTotal();

    /// LevelBonus and TotalMod of the side that opposes Side. Throws the overflow Failure and then leaves that side's
    /// record whole.
    void CalcOtherTotal(int Side);
};

} // namespace warhost
