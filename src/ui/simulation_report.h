// The simulation's result and the exact odds in words.
#pragma once

#include "army/value_conversion.h"
#include "battle/odds.h"
#include "battle/simulation.h"

#include <cstdint>
#include <string>

namespace warhost {

/// The report of at least one battle, its lines ended by CR LF.
std::string simulation_report(Tally const& tally, NumberFormat const& format);

/// One line on the sample: its size, and half the widths of the 95 % confidence intervals of the report's numbers.
std::string sample_text(Tally const& tally, NumberFormat const& format);

/// One line on the exact odds, with one decimal as in the report.
std::string long_run_text(Odds const& odds, NumberFormat const& format);

/// "1 battle", "1,000 battles".
std::string battles_text(std::int64_t battles, NumberFormat const& format);

} // namespace warhost
