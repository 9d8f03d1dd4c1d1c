// Many battles between the same two armies.
#pragma once

#include "battle/battle_state.h"
#include "battle/dice.h"
#include "battle/outcome_table.h"
#include "battle/random.h"

#include <array>
#include <cstdint>

namespace warhost {

inline constexpr int highest_share = 110; // percent of the loser's percentage

/// How the battles fought so far ended: one exact count for each winner, outcome row and victor's share of the loser's
/// percentage. Room for 2000000000 battles and more.
class Tally {
public:
    static constexpr std::size_t shares = highest_share + 1;
    static constexpr std::size_t outcomes = outcome_table.size() + 1; // the last: no row
    static constexpr std::size_t winners = 3;

    /// Where the shares of a battle that `winner` won by `margin` begin.
    static std::size_t place_of(int winner, int margin);

    void count(std::size_t place) { ++counts_[place]; }

    std::int64_t battles() const;
    std::int64_t won_by(int winner) const;

    /// Sum over all battles of the percentage that a side suffered, Index 0 for Side A and 1 for Side B: the loser's
    /// whole, the victor's in single precision, summed in double precision.
    double casualties(int Index) const;

    /// Battles by the percentage that a side suffered, rounded to whole percent, 0 to 110.
    std::array<std::int64_t, highest_share + 1> histogram(int Index) const;

    /// Percentage points by which the average casualties of a side may be off, 95 times in a hundred.
    double casualty_margin(int Index) const;

private:
    /// Calls visit(count, percentage) for each kind of battle that was fought.
    template <class Visitor> void visit_casualties(int Index, Visitor visit) const;

    std::array<std::uint32_t, winners * outcomes * shares> counts_{};
};

/// Percentage points by which a share of `battles` battles may be off, 95 times in a hundred, whatever the share.
double share_margin(std::int64_t battles);

/// What one battle leaves on the combat screen that the next one can feel.
struct CarriedOver {
    int result_b = 0;    // Side B's result, as read
    int victor_roll = 0; // the victor's casualty roll, as read
};

/// Fights battles as Roll All does, with one reroll when a box asks for it, on a few integers: the same rules, the same
/// random values in the same order, momentary ties and the rolls that they evaluate included.
class Simulation {
public:
    /// Total modifiers -32000 to 32000, as read from the combat screen.
    Simulation(int modifier_a, int modifier_b, CarriedOver before);

    void fight(RandomSource& random, std::int32_t battles);

    CarriedOver carried_over() const { return carried_over_; }
    Tally& tally() { return tally_; }

private:
    /// A pair of dice: where its battles are counted, the bonus its margin earns, whether it is a tie.
    struct Meeting {
        std::uint16_t place;
        std::uint8_t bonus;
        bool tie;
    };

    template <class Source> void run(Source& source, std::int32_t battles);

    std::array<std::int16_t, die_sides> results_a_{};
    std::array<std::int16_t, die_sides> results_b_{};
    std::array<std::array<Meeting, die_sides>, die_sides> meetings_{}; // by Side A's die, then Side B's
    CarriedOver carried_over_;
    Tally tally_;
};

} // namespace warhost
