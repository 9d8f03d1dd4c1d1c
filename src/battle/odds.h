// The exact odds of a battle.
#pragma once

#include "battle/endings.h"

namespace warhost {

/// The chance of each ending in the long run of battles fought one after another as Simulation does; together 1 within
/// 1e-12. Away from the limits of a result only the difference of the modifiers counts.
///
/// A battle carries Side B's result and the victor's roll over to the next, where a tie may evaluate that roll. The
/// chances are those of the stationary state of this Markov chain. Neglecting it would shift the mean casualties of a
/// side by up to 0.0014 points, 0.0036 where results are limited to 32000, and about six battles in 10,000 to other
/// endings.
class Odds : public Endings<double> {
public:
    /// Total modifiers -32000 to 32000, as read from the combat screen. Allocates nothing; a fraction of a millisecond.
    Odds(int modifier_a, int modifier_b);
};

} // namespace warhost
