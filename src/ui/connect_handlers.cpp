#include "ui/main.h"

namespace warhost {

Main::Main(Desktop& desktop, RandomSource& random) : desktop_(desktop), random_(random) { connect_handlers(); }

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
