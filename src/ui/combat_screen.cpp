#include "base/checked.h"
#include "battle/dice.h"
#include "battle/losses.h"
#include "battle/outcome_table.h"
#include "battle/victor_table.h"
#include "ui/main.h"
#include "ui/rich_text.h"

#include <cstdint>
#include <cstdlib>
#include <utility>

namespace warhost {

void Main::cmdRollAll_Click()
{
    chkPlus5.set_state(0);
    chkMinus5.set_state(0);
    cmdRoll_Click(0);
    cmdRoll_Click(1);
    cmdRollCasualty_Click();
    cmdRollVictorCas_Click();
}

void Main::cmdRoll_Click(int Index)
{
    int const die = roll_d20(random_);
    quiet_step([&] { txtResult(Index).set_text(plain_text(die + TextToInt(txtTotalMod(Index).text()))); });
}

void Main::txtResult_Change(int /*Index*/)
{
    quiet_step([&] {
        battle.ResultA = TextToInt(txtResult(0).text());
        battle.ResultB = TextToInt(txtResult(1).text());
        battle.Winner = winner_of(battle.ResultA, battle.ResultB);
        battle.WinMargin = std::abs(battle.ResultA - battle.ResultB);
        lblWinner.set_caption(std::string{winner_captions.at(static_cast<std::size_t>(battle.Winner))});
        lblWinBy.set_caption(plain_text(battle.WinMargin));
        Outcome const* const outcome = outcome_of(battle.WinMargin);
        describe(txtBattleResults, outcome != nullptr ? outcome->account : "");
        txtCasRollBonus.set_text(plain_text(casualty_roll_bonus(battle.WinMargin)));
        txtLoserCasualty.set_text(plain_text(outcome != nullptr ? outcome->percent : 0));
    });
    if (battle.Winner == tie) txtVictorCasRoll_Change();
}

/// Without memory for the description, shows none rather than that of another battle.
void Main::describe(RichTextBox& box, std::string_view account, std::string_view heading)
{
    if (!quiet_step([&] { box.set_document(rich_text_account(heading, account)); })) box.set_document({});
}

void Main::txtLoserCasualty_Change()
{
    quiet_step([&] { lblLoserPercent.set_caption(txtLoserCasualty.text() + "%"); });
    quiet_step([&] { battle.LoserCasualty = TextToInt(txtLoserCasualty.text()); });
    spread_losses(loser_index(battle.Winner), battle.LoserCasualty);
}

int Main::effective_casualty_bonus()
{
    return effective_bonus(TextToInt(txtCasRollBonus.text()), chkMinus5.state() == 1, chkPlus5.state() == 1);
}

void Main::cmdRollCasualty_Click()
{
    int const die = roll_d20(random_);
    quiet_step([&] { txtVictorCasRoll.set_text(plain_text(die + effective_casualty_bonus())); });
}

void Main::txtVictorCasRoll_Change()
{
    std::string_view heading;
    std::string_view account;
    quiet_step([&] {
        int const roll = TextToInt(txtVictorCasRoll.text());
        VictorRow const* const row =
            victor_row_of({roll, roll - effective_casualty_bonus(), chkMinus5.state() == 1, chkPlus5.state() == 1});
        if (row == nullptr) return;
        heading = row->heading;
        account = row->account;
        battle.CasRangeLow = row->low;
        battle.CasRangeHigh = row->high;
        if (row->box == Box::minus5) chkMinus5.set_state(1);
        if (row->box == Box::plus5) chkPlus5.set_state(1);
    });
    if (battle.Winner == tie) {
        heading = {};
        account = tie_account;
        battle.CasRangeLow = battle.CasRangeHigh = tie_percent;
        cmdRollVictorCas_Click();
        txtVictorCasPercent_Change();
    }
    quiet_step([&] {
        lblCasRange.set_caption(battle.CasRangeLow == battle.CasRangeHigh
                                    ? plain_text(battle.CasRangeLow)
                                    : plain_text(battle.CasRangeLow) + " to " + plain_text(battle.CasRangeHigh));
    });
    describe(txtVictorDesc, account, heading);
}

void Main::cmdRollVictorCas_Click()
{
    int const share = roll_between(random_, battle.CasRangeLow, battle.CasRangeHigh);
    quiet_step([&] { txtVictorCasPercent.set_text(plain_text(share)); });
}

void Main::txtVictorCasPercent_Change()
{
    quiet_step([&] {
        int const share = TextToInt(txtVictorCasPercent.text());
        battle.VictorCasualty = victor_casualty(battle.LoserCasualty, share);
        txtVictorCas.set_text(
            hundredths_as_tenths(std::int64_t{battle.LoserCasualty} * share, desktop_.number_format()));
    });
}

void Main::txtVictorCas_Change()
{
    quiet_step([&] { spread_losses(victor_index(battle.Winner), TextToInt(txtVictorCas.text())); });
}

void Main::spread_losses(int Index, int percent)
{
    quiet_step([&] {
        for (int row = 0; row < unit_rows; ++row) {
            std::int32_t const soldiers = of_side(Index + 1).UnitNum.at(row);
            txtLoses(combat_row(Index, row)).set_text(plain_text(row_loss(soldiers, percent)));
        }
    });
}

void Main::cmdApplyCasualties_Click(int Index)
{
    KeptTab const kept{*this};
    Army& own = of_side(Index + 1);
    Army& other = of_side(2 - Index);
    Army copy;
    if (!quiet_step([&] { copy_army(own, copy); })) return; // nothing is applied by halves
    for (int row = 0; row < unit_rows; ++row) {
        int const field = combat_row(Index, row);
        std::int32_t& soldiers = copy.UnitNum.at(row);
        quiet_step([&] {
            std::int32_t const loss = TextToLong(txtLoses(field).text());
            soldiers = checked_difference(soldiers, loss);
        });
        quiet_step([&] { txtANum(field).set_text(plain_text(soldiers)); });
    }
    own.UnitNum = copy.UnitNum;
    CurArmy = std::move(copy);
    quiet_step([&] { CalcTotalNo(); });
    quiet_step([&] { CalcTroopRatio(Index + 1); });
    quiet_step([&] { CalcArmyTotal(); });
    quiet_step([&] { own = CurArmy; });
    if (CurArmy.TotalNo <= 0) {
        quiet_step([&] { desktop_.message_box({.text = std::string{side_name(Index)} + " has been annihilated!"}); });
    }
    quiet_step([&] { copy_army(other, CurArmy); });
    quiet_step([&] { CalcArmyTotal(); });
    quiet_step([&] { other = CurArmy; });
    quiet_step([&] { show_total_modifiers(); });
}

} // namespace warhost
