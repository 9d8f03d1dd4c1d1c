// The three army records and the arithmetic that runs on them.
#pragma once

#include "army/army.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace warhost {

/// Positions of the tabs; 1 and 2 are also the two sides of a battle.
enum Tab : int { tab_side_a = 1, tab_side_b = 2, tab_combat = 3 };

/// Side A is Index 0, Side B Index 1.
constexpr std::string_view side_name(int Index) { return Index == 0 ? "Side A" : "Side B"; }

/// The combat screen has the unit rows of both sides in one array, Side A's first.
constexpr int combat_row(int Index, int row) { return unit_rows * Index + row; }

/// Makes `to` a copy of `from`. Throws std::bad_alloc and then leaves `to` as it was.
inline void copy_army(Army const& from, Army& to)
{
    Army copy = from;
    to = std::move(copy);
}

/// The records of both sides and CurArmy, the working copy of the side whose tab is selected.
/// Every operation that throws leaves the member it was computing as it was.
struct Armies {
    Army ArmyA;
    Army ArmyB;
    Army CurArmy;

    /// The record of a side (1 or 2).
    Army& of_side(int Side) { return Side == tab_side_a ? ArmyA : ArmyB; }

    /// Zeroes CurArmy's Opt, OptValue, MiscCheck and MiscValue.
    void ClearChoices();

    /// Recounts CurArmy.TotalNo over rows 0 to 7. Throws the overflow Failure at the row whose running sum leaves
    /// 32 bits; TotalNo then keeps the sum of the rows before it.
    void CalcTotalNo();

    /// LevelBonus and TotalMod of CurArmy. Throws the overflow Failure.
    void CalcArmyTotal();

    /// LevelBonus and TotalMod of the side whose tab is not selected; nothing with the combat tab.
    /// Throws the overflow Failure and then leaves that side's record whole.
    void CalcOtherTotal(int selected_tab);
};

} // namespace warhost
