// What must be true after anything that a user does.
#pragma once

#include "army/same_army.h"
#include "ui/main.h"

#include <gtest/gtest.h>

namespace warhost {

/// The records, the totals and the shown texts belong together.
inline void check_agreement(Main& form)
{
    ASSERT_EQ(form.lblWinBy.caption(), plain_text(std::abs(form.battle.ResultA - form.battle.ResultB)));
    ASSERT_TRUE(form.ArmyA.RatioBonus == 0 || form.ArmyB.RatioBonus == 0);
    ASSERT_EQ(form.txtTotalMod(0).text(), plain_text(form.ArmyA.TotalMod));
    ASSERT_EQ(form.txtTotalMod(1).text(), plain_text(form.ArmyB.TotalMod));
    int const tab = form.TabStrip.position();
    ASSERT_EQ(form.FrameArmy.visible(), tab != tab_combat);
    if (tab == tab_combat) return;
    Army const& army = form.CurArmy;
    ASSERT_TRUE(same(army, form.of_side(tab)));
    ASSERT_EQ(form.txtArmyName.text(), army.Name);
    for (int row = 0; row < unit_rows; ++row) {
        ASSERT_EQ(TextToLong(form.txtUnitNum(row).text()), army.UnitNum[row]);
        ASSERT_EQ(form.txtANum((tab - 1) * unit_rows + row).text(), form.txtUnitNum(row).text());
    }
    for (auto const& [k, button] : form.opt) ASSERT_EQ(button.selected(), army.Opt[k] == -1);
    for (auto const& [i, result] : form.cmbOpt) ASSERT_EQ(TextToLong(result.text()), army.OptValue[i]);
    ASSERT_EQ(form.txtTotal.text(), plain_text(army.TotalMod));
    ASSERT_EQ(form.lblLevelBonus.caption(), SignedText(army.LevelBonus));
}

} // namespace warhost
