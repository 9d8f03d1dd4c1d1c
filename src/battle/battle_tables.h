// A battle reduced to integer tables, shared by the simulation (sampled) and the odds (exact).
#pragma once

#include "base/limits.h"
#include "battle/battle_state.h"
#include "battle/dice.h"
#include "battle/outcome_table.h"
#include "battle/victor_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace warhost {

/// The two boxes as bits.
using Boxes = unsigned;
inline constexpr Boxes minus5_box = 1;
inline constexpr Boxes plus5_box = 2;
inline constexpr std::size_t box_states = 4;

inline constexpr int highest_bonus = casualty_roll_bonus(outcome_table.back().last);

constexpr Boxes box_bit(Box box) { return box == Box::minus5 ? minus5_box : box == Box::plus5 ? plus5_box : 0; }

constexpr int bonus_with(int bonus, Boxes boxes)
{
    return effective_bonus(bonus, (boxes & minus5_box) != 0, (boxes & plus5_box) != 0);
}

constexpr VictorRow const* row_of(int roll, int bonus, Boxes boxes)
{
    return victor_row_of({roll, roll - bonus_with(bonus, boxes), (boxes & minus5_box) != 0, (boxes & plus5_box) != 0});
}

/// The victor's table for a die, a bonus and the boxes as they stand.
struct Judgement {
    std::uint8_t low;
    std::uint8_t span;  // numbers in the range
    std::uint8_t boxes; // afterwards
    std::int8_t roll;
};

/// The offset of the judgements of all dice: the sum of one offset for the bonus and one for the boxes.
constexpr std::size_t judgements_from(unsigned bonus, Boxes boxes) { return (bonus * box_states + boxes) * die_sides; }

constexpr std::size_t judgement_index(unsigned bonus, Boxes boxes, unsigned die)
{
    return judgements_from(bonus, boxes) + die - 1;
}

inline constexpr auto judgements = [] {
    std::array<Judgement, (highest_bonus + 1) * box_states * die_sides> table{};
    for (int bonus = 0; bonus <= highest_bonus; ++bonus) {
        for (Boxes boxes = 0; boxes < box_states; ++boxes) {
            for (int die = 1; die <= die_sides; ++die) {
                int const roll = die + bonus_with(bonus, boxes);
                VictorRow const& row = *row_of(roll, bonus, boxes);
                table.at(judgement_index(static_cast<unsigned>(bonus), boxes, static_cast<unsigned>(die))) = {
                    static_cast<std::uint8_t>(row.low), static_cast<std::uint8_t>(row.high - row.low + 1),
                    static_cast<std::uint8_t>(boxes | box_bit(row.box)), static_cast<std::int8_t>(roll)};
            }
        }
    }
    return table;
}();

/// The rolls that a battle can show.
inline constexpr int lowest_roll = 1 + bonus_with(0, minus5_box);
inline constexpr int highest_roll = die_sides + bonus_with(highest_bonus, plus5_box);

/// The boxes that a tie checks when it evaluates the roll shown from before, which it does with a bonus of 0: by roll,
/// from lowest_roll on.
inline constexpr auto boxes_of_shown = [] {
    std::array<std::uint8_t, highest_roll - lowest_roll + 1> table{};
    for (int roll = lowest_roll; roll <= highest_roll; ++roll) {
        table.at(static_cast<std::size_t>(roll - lowest_roll)) =
            static_cast<std::uint8_t>(box_bit(row_of(roll, 0, 0)->box));
    }
    return table;
}();
// Any other roll is clamped to the ends, which check no box either.
static_assert(boxes_of_shown.front() == 0 && boxes_of_shown.back() == 0);
// A battle whose first die ties may end in a tie, too, which evaluates the same roll again and checks no further box.
static_assert([] {
    for (int roll = lowest_roll; roll <= highest_roll; ++roll) {
        Boxes const boxes = boxes_of_shown.at(static_cast<std::size_t>(roll - lowest_roll));
        if ((box_bit(row_of(roll, 0, boxes)->box) | boxes) != boxes) return false;
    }
    return true;
}());

constexpr Boxes boxes_after_shown(int roll) { return boxes_of_shown[static_cast<unsigned>(roll - lowest_roll)]; }

/// A pair of dice: who wins by how much, and the bonus that the margin earns.
struct Meeting {
    BattleWinner winner;
    int margin;
    int bonus;
};

/// Both sides' results by die, as read from the combat screen.
struct Results {
    std::array<int, die_sides> a{};
    std::array<int, die_sides> b{};

    /// Total modifiers within field_limit.
    Results(int modifier_a, int modifier_b)
    {
        auto const as_read = [](int modifier, std::size_t die) {
            return std::clamp(modifier + static_cast<int>(die) + 1, -field_limit, field_limit);
        };
        for (std::size_t die = 0; die < die_sides; ++die) {
            a.at(die) = as_read(modifier_a, die);
            b.at(die) = as_read(modifier_b, die);
        }
    }

    Meeting meeting(std::size_t die_a, std::size_t die_b) const
    {
        int const margin = std::abs(a.at(die_a) - b.at(die_b));
        return {winner_of(a.at(die_a), b.at(die_b)), margin, casualty_roll_bonus(margin)};
    }
};

} // namespace warhost
