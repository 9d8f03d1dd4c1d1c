#include "army/modifier_options.h"
#include "army/troop_ratio.h"
#include "ui/main.h"

#include <algorithm>
#include <cstdint>

namespace warhost {

namespace {

/// Keeps the flag set during its lifetime.
class RaisedFlag {
public:
    explicit RaisedFlag(bool& flag) : flag_(flag) { flag = true; }
    RaisedFlag(RaisedFlag const&) = delete;
    RaisedFlag& operator=(RaisedFlag const&) = delete;
    ~RaisedFlag() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace

bool Main::army_tab_selected() { return TabStrip.position() == tab_side_a || TabStrip.position() == tab_side_b; }

int Main::shown_side() { return TabStrip.position() == tab_side_b ? 1 : 0; }

void Main::CurArmy_Save()
{
    if (army_tab_selected()) copy_army(CurArmy, of_side(TabStrip.position()));
}

void Main::CurArmy_Update()
{
    RaisedFlag const updating{Updating};
    quiet_step([&] { txtArmyName.set_text(CurArmy.Name); });
    for (int row = 0; row < unit_rows; ++row) {
        quiet_step([&] { txtUnitType(row).set_text(CurArmy.UnitType.at(row)); });
        quiet_step([&] { txtUnitNum(row).set_text(plain_text(CurArmy.UnitNum.at(row))); });
    }
    quiet_step([&] {
        for (auto& [k, button] : opt) button.set_selected(CurArmy.Opt.at(k) != 0);
    });
    quiet_step([&] {
        for (auto& [i, result] : cmbOpt) result.set_text(SignedText(CurArmy.OptValue.at(i)));
    });
    quiet_step([&] {
        for (int row = 1; row <= counted_misc_rows(); ++row) {
            cmbMisc(row).set_text(SignedText(CurArmy.MiscValue.at(row)));
            chkMisc(row).set_state(CurArmy.MiscCheck.at(row) == 1 ? 1 : 0);
        }
    });
    quiet_step([&] { cmbLevel.set_text(general_text(CurArmy.Level, desktop_.number_format())); });
    quiet_step([&] { CalcArmyTotal(); });
    quiet_step([&] { CurArmy_Save(); });
    quiet_step([&] {
        txtTotal.set_text(plain_text(CurArmy.TotalMod));
        show_total_modifiers();
    });
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
        // Without its own record the screen would show, and then store, the other side's.
        if (!quiet_step([&] { copy_army(of_side(TabStrip.position()), CurArmy); })) return TabStrip.choose(tab_combat);
        FrameArmy.set_visible(true);
        CurArmy_Update();
        CalcTotal();
    } else {
        FrameCombat.set_visible(true);
    }
}

void Main::txtArmyName_Change()
{
    quiet_step([&] { CurArmy.Name = txtArmyName.text(); });
    quiet_step([&] { CurArmy_Save(); });
}

void Main::txtUnitType_Change(int Index)
{
    quiet_step([&] { CurArmy.UnitType.at(Index) = txtUnitType(Index).text(); });
    quiet_step([&] { CurArmy_Save(); });
    int const side = shown_side();
    quiet_step([&] {
        for (int row = 0; row < unit_rows; ++row) txtAName(combat_row(side, row)).set_text(txtUnitType(row).text());
    });
}

void Main::txtUnitNum_Change(int Index)
{
    quiet_step([&] { CurArmy.UnitNum.at(Index) = TextToLong(txtUnitNum(Index).text()); });
    quiet_step([&] { CalcTotalNo(); });
    CalcTotal();
    int const side = shown_side();
    quiet_step([&] {
        for (int row = 0; row < unit_rows; ++row) txtANum(combat_row(side, row)).set_text(txtUnitNum(row).text());
    });
}

void Main::opt_Click(int Index)
{
    quiet_step([&] {
        std::string const& tag = opt(Index).tag();
        auto const comma = tag.find(',');
        int const low = TextToInt(tag);
        int const high = comma == std::string::npos ? low : TextToInt(tag.substr(comma + 1));
        ComboBox& result = cmbOpt(option_of(Index)->category);
        result.set_list(low, high);
        result.set_text(SignedText(low));
    });
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
    quiet_step([&] { chkMisc(Index).set_bold(chkMisc(Index).state() == 1); });
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
    quiet_step([&] {
        for (auto& [k, button] : opt) CurArmy.Opt.at(k) = static_cast<std::int16_t>(button.selected() ? -1 : 0);
    });
    quiet_step([&] {
        for (auto& [i, result] : cmbOpt) CurArmy.OptValue.at(i) = TextToLong(result.text());
    });
    quiet_step([&] {
        for (int row = 1; row <= counted_misc_rows(); ++row) {
            CurArmy.MiscValue.at(row) = TextToLong(cmbMisc(row).text());
            CurArmy.MiscCheck.at(row) = static_cast<std::int16_t>(chkMisc(row).state());
        }
    });
    NumberFormat format;
    quiet_step([&] { format = desktop_.number_format(); });
    quiet_step([&] { CurArmy.Level = TextToSingle(cmbLevel.text(), format); });
    int const tab = TabStrip.position();
    (tab == tab_side_a ? ArmyB : ArmyA).OtherLevel = CurArmy.Level;
    quiet_step([&] { CalcTotalNo(); });
    quiet_step([&] { CalcTroopRatio(tab); });
    quiet_step([&] { CalcArmyTotal(); });
    if (army_tab_selected()) quiet_step([&] { CalcOtherTotal(tab); });
    quiet_step([&] { CurArmy_Save(); });
    quiet_step([&] {
        txtTotal.set_text(plain_text(CurArmy.TotalMod));
        txtTotalNo.set_text(plain_text(CurArmy.TotalNo));
        show_total_modifiers();
        lblOtherLevel.set_caption(general_text(CurArmy.OtherLevel, format));
        lblLevelBonus.set_caption(SignedText(CurArmy.LevelBonus));
    });
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
