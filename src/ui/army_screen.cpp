#include "army/modifier_options.h"
#include "army/troop_ratio.h"
#include "ui/main.h"

#include <algorithm>

namespace warhost {

bool Main::army_tab_selected() { return TabStrip.position() == tab_side_a || TabStrip.position() == tab_side_b; }

int Main::shown_side() { return TabStrip.position() == tab_side_b ? 1 : 0; }

void Main::CurArmy_Save()
{
    if (army_tab_selected()) of_side(TabStrip.position()) = CurArmy;
}

void Main::CurArmy_Update()
{
    Updating = true;
    txtArmyName.set_text(CurArmy.Name);
    for (int row = 0; row < unit_rows; ++row) {
        txtUnitType(row).set_text(CurArmy.UnitType.at(row));
        txtUnitNum(row).set_text(plain_text(CurArmy.UnitNum.at(row)));
    }
    for (auto& [k, button] : opt) button.set_selected(CurArmy.Opt.at(k) != 0);
    for (auto& [i, result] : cmbOpt) result.set_text(SignedText(CurArmy.OptValue.at(i)));
    for (int row = 1; row <= counted_misc_rows(); ++row) {
        cmbMisc(row).set_text(SignedText(CurArmy.MiscValue.at(row)));
        chkMisc(row).set_state(CurArmy.MiscCheck.at(row) == 1 ? 1 : 0);
    }
    cmbLevel.set_text(general_text(CurArmy.Level, desktop_.number_format()));
    quiet_step([&] { CalcArmyTotal(); });
    CurArmy_Save();
    txtTotal.set_text(plain_text(CurArmy.TotalMod));
    show_total_modifiers();
    Updating = false;
}

void Main::show_total_modifiers()
{
    txtTotalMod(0).set_text(plain_text(ArmyA.TotalMod));
    txtTotalMod(1).set_text(plain_text(ArmyB.TotalMod));
}

void Main::TabStrip_Click()
{
    FrameArmy.set_visible(false);
    FrameCombat.set_visible(false);
    if (army_tab_selected()) {
        CurArmy = of_side(TabStrip.position());
        FrameArmy.set_visible(true);
        CurArmy_Update();
        CalcTotal();
    } else {
        FrameCombat.set_visible(true);
    }
}

void Main::txtArmyName_Change()
{
    CurArmy.Name = txtArmyName.text();
    CurArmy_Save();
}

void Main::txtUnitType_Change(int Index)
{
    CurArmy.UnitType.at(Index) = txtUnitType(Index).text();
    CurArmy_Save();
    int const side = shown_side();
    for (int row = 0; row < unit_rows; ++row) txtAName(combat_row(side, row)).set_text(txtUnitType(row).text());
}

void Main::txtUnitNum_Change(int Index)
{
    CurArmy.UnitNum.at(Index) = TextToLong(txtUnitNum(Index).text());
    quiet_step([&] { CalcTotalNo(); });
    CalcTotal();
    int const side = shown_side();
    for (int row = 0; row < unit_rows; ++row) txtANum(combat_row(side, row)).set_text(txtUnitNum(row).text());
}

void Main::opt_Click(int Index)
{
    std::string const& tag = opt(Index).tag();
    auto const comma = tag.find(',');
    int const low = TextToInt(tag);
    int const high = comma == std::string::npos ? low : TextToInt(tag.substr(comma + 1));
    ComboBox& result = cmbOpt(option_of(Index)->category);
    result.clear_list();
    for (int value = low; value <= high; ++value) result.add_item(SignedText(value));
    result.set_text(SignedText(low));
    CalcTotal();
}

void Main::cmbOpt_Change(int /*Index*/) { CalcTotal(); }

void Main::cmbOpt_Click(int /*Index*/) { CalcTotal(); }

void Main::cmbLevel_Change() { CalcTotal(); }

void Main::cmbLevel_Click() { CalcTotal(); }

void Main::cmbMisc_Change(int /*Index*/) { CalcTotal(); }

void Main::cmbMisc_Click(int /*Index*/) { CalcTotal(); }

void Main::chkMisc_Click(int Index)
{
    CalcTotal();
    chkMisc(Index).set_bold(chkMisc(Index).state() == 1);
}

int Main::counted_misc_rows()
{
    if (chkMisc.highest() != cmbMisc.highest()) return 0;
    return std::min(chkMisc.highest(), record_choices - 1);
}

void Main::CalcTotal()
{
    if (Updating) return;
    ClearChoices();
    for (auto& [k, button] : opt) CurArmy.Opt.at(k) = static_cast<std::int16_t>(button.selected() ? -1 : 0);
    for (auto& [i, result] : cmbOpt) CurArmy.OptValue.at(i) = TextToLong(result.text());
    for (int row = 1; row <= counted_misc_rows(); ++row) {
        CurArmy.MiscValue.at(row) = TextToLong(cmbMisc(row).text());
        CurArmy.MiscCheck.at(row) = static_cast<std::int16_t>(chkMisc(row).state());
    }
    NumberFormat const format = desktop_.number_format();
    CurArmy.Level = TextToSingle(cmbLevel.text(), format);
    int const tab = TabStrip.position();
    (tab == tab_side_a ? ArmyB : ArmyA).OtherLevel = CurArmy.Level;
    quiet_step([&] { CalcTotalNo(); });
    quiet_step([&] { CalcTroopRatio(tab); });
    quiet_step([&] { CalcArmyTotal(); });
    quiet_step([&] { CalcOtherTotal(tab); });
    CurArmy_Save();
    txtTotal.set_text(plain_text(CurArmy.TotalMod));
    txtTotalNo.set_text(plain_text(CurArmy.TotalNo));
    show_total_modifiers();
    lblOtherLevel.set_caption(general_text(CurArmy.OtherLevel, format));
    lblLevelBonus.set_caption(SignedText(CurArmy.LevelBonus));
}

void Main::CalcTroopRatio(int Side)
{
    Army* const opposing = Side == tab_side_a ? &ArmyB : Side == tab_side_b ? &ArmyA : nullptr;
    std::int32_t const own = CurArmy.TotalNo;
    std::int32_t const other = opposing != nullptr ? opposing->TotalNo : 0;
    std::int16_t other_bonus = 0;
    if (own >= other) {
        CurArmy.RatioBonus = ratio_bonus(own, other);
        lblRatio.set_caption(ratio_text(own, other, desktop_.number_format()));
    } else {
        CurArmy.RatioBonus = 0;
        lblRatio.set_caption("< 1:1");
        other_bonus = ratio_bonus(other, own);
    }
    lblRatioBonus.set_caption(SignedText(CurArmy.RatioBonus));
    if (opposing != nullptr) opposing->RatioBonus = other_bonus;
}

} // namespace warhost
