#include "ui/combat_controls.h"

namespace warhost {

CombatControls::CombatControls()
{
    chkPlus5.tooltip = "Add +5 to roll";
    chkMinus5.tooltip = "Subtract -5 from roll";
    for (auto& [row, name] : txtAName) name.read_only = true;
    for (auto& [row, count] : txtANum) count.read_only = true;
}

} // namespace warhost
