#include "ui/army_controls.h"

#include <cstddef>

namespace warhost {

ArmyControls::ArmyControls()
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
    txtTotal.read_only = true;
}

} // namespace warhost
