#include "ui/main.h"

#include "army/modifier_options.h"

namespace warhost {

Main::Main(Desktop& desktop, RandomSource& random) : desktop_(desktop), random_(random)
{
    for (auto const& option : options) {
        opt.create(option.index, std::string{option.caption}, std::string{option.tag},
                   option_groups_.at(static_cast<std::size_t>(option.category)));
    }
    for (auto& [category, result] : cmbOpt) result.tooltip = "Final Result of options";
    cmbLevel.set_list(1, 20, plain_text);
    chkMisc(0).visible = false;
    chkMisc(0).place = {120, 0, 5655, 255};
    cmbMisc(0).visible = false;
    cmbMisc(0).place = {5040, 0, 735, 315};
    cmdSaveArmy.tooltip = "Save this army to file";
    cmdLoadArmy.tooltip = "Load an army from a file";
    chkPlus5.tooltip = "Add +5 to roll";
    chkMinus5.tooltip = "Subtract -5 from roll";
    txtTotal.read_only = true;
    for (auto& [row, name] : txtAName) name.read_only = true;
    for (auto& [row, count] : txtANum) count.read_only = true;
    connect_handlers();
}

void Main::connect_handlers()
{
    TabStrip.Click = [this] { TabStrip_Click(); };

    txtArmyName.Change = [this] { txtArmyName_Change(); };
    cmdSaveArmy.Click = [this] { cmdSaveArmy_Click(); };
    cmdLoadArmy.Click = [this] { cmdLoadArmy_Click(); };
    for (int row = 0; row < unit_rows; ++row) {
        txtUnitType(row).Change = [this, row] { txtUnitType_Change(row); };
        txtUnitNum(row).Change = [this, row] { txtUnitNum_Change(row); };
    }
    for (auto& [Index, button] : opt) {
        button.Click = [this, which = Index] { opt_Click(which); };
    }
    for (auto& [Index, result] : cmbOpt) {
        result.Change = [this, which = Index] { cmbOpt_Change(which); };
        result.Click = [this, which = Index] { cmbOpt_Click(which); };
    }
    cmbLevel.Change = [this] { cmbLevel_Change(); };
    cmbLevel.Click = [this] { cmbLevel_Click(); };

    cmdRollAll.Click = [this] { cmdRollAll_Click(); };
    for (int const Index : {0, 1}) {
        cmdRoll(Index).Click = [this, Index] { cmdRoll_Click(Index); };
        txtResult(Index).Change = [this, Index] { txtResult_Change(Index); };
        cmdApplyCasualties(Index).Click = [this, Index] { cmdApplyCasualties_Click(Index); };
    }
    txtLoserCasualty.Change = [this] { txtLoserCasualty_Change(); };
    txtVictorCasRoll.Change = [this] { txtVictorCasRoll_Change(); };
    cmdRollCasualty.Click = [this] { cmdRollCasualty_Click(); };
    cmdRollVictorCas.Click = [this] { cmdRollVictorCas_Click(); };
    txtVictorCasPercent.Change = [this] { txtVictorCasPercent_Change(); };
    txtVictorCas.Change = [this] { txtVictorCas_Change(); };
    cmdSimulate.Click = [this] { cmdSimulate_Click(); };
}

} // namespace warhost
