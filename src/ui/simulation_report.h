// The simulation's result in words.
#pragma once

#include "army/value_conversion.h"
#include "battle/simulation.h"

#include <string>

namespace warhost {

/// The report of at least one battle, its lines ended by CR LF.
std::string simulation_report(Tally const& tally, NumberFormat const& format);

/// One line on how far the report's numbers may be off, 95 times in a hundred.
std::string simulation_margin(Tally const& tally, NumberFormat const& format);

} // namespace warhost
