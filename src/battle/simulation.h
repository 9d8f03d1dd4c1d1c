// Many battles between the same two armies.
#pragma once

#include "battle/battle_tables.h"
#include "battle/endings.h"
#include "battle/random.h"

#include <array>
#include <bit>
#include <cstdint>

namespace warhost {

/// How many of the battles fought so far ended in which way. Exact up to 4294967295 battles.
class Tally : public Endings<std::uint32_t> {
public:
    /// Counts a battle won by `margin`, 0 or more. A share beyond 0 to 110 counts as the nearer end.
    void count(BattleWinner winner, int margin, int share);

    std::int64_t battles() const { return total(); }

    /// Half the width, in percentage points, of the 95 % confidence interval of a side's mean casualties.
    double casualty_margin(int Index) const;

private:
    friend class Simulation; // looks the place of each pair of dice up once
};

/// Half the width, in percentage points, of the 95 % confidence interval of any share of `battles` battles.
double share_margin(std::int64_t battles);

/// State carried from one battle to the next.
struct CarriedOver {
    int result_b = 0;    // Side B's result, as read
    int victor_roll = 0; // the victor's casualty roll, as read
};

/// Fights battles as Roll All does, with one reroll when a box asks for it, on a few integers: the same rules, the same
/// random values in the same order, passing ties and the rolls that they evaluate included.
class Simulation {
public:
    /// Total modifiers -32000 to 32000, as read from the combat screen.
    Simulation(int modifier_a, int modifier_b, CarriedOver before);

    void fight(RandomSource& random, std::int32_t battles);

    CarriedOver carried_over() const { return carried_over_; }
    Tally& tally() { return tally_; }

private:
    /// A pair of dice: where its battles are counted, where the judgements of its bonus begin, whether it is a tie. Its
    /// size is a power of two, and so is the length of a row of them, which spares multiplications.
    struct alignas(8) Meeting {
        std::uint16_t place;
        std::uint16_t judgements;
        bool tie;
    };

    template <class Source> void run(Source& random, std::int32_t battles);

    Results results_;
    std::array<std::array<Meeting, std::bit_ceil(unsigned{die_sides})>, die_sides> meetings_{}; // by both sides' dice
    CarriedOver carried_over_;
    Tally tally_;
};

} // namespace warhost
