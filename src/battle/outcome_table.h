// The consequences of a battle's margin: the loser's casualties, their description, the victor's bonus.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace warhost {

/// WinMargin first to last, both included. percent: the loser's casualties.
struct Outcome {
    int first;
    int last;
    int percent;
    std::string_view account;
};

// clang-format off
inline constexpr std::array outcome_table{
    Outcome{ 0,     0,  10, "After a foray, both sides simultaneously disengage to regroup.  Both sides suffer 10% casualties with no ground lost."},
    Outcome{ 1,     2,  10, "10% casualties; no ground lost."},
    Outcome{ 3,     4,  15, "15% casualties; 50% chance some ground lost."},
    Outcome{ 5,     6,  20, "20% casualties; loser loses ground."},
    Outcome{ 7,     8,  25, "25% casualties; loser loses ground."},
    Outcome{ 9,    10,  30, "30% casualties; 50% chance of commander (NPC) lost or killed or important info or equipment taken by victor; Loss of ground."},
    Outcome{11,    13,  45, "45% casualties; 60% chance of commander (NPC) lost or killed or important info or equipment taken by victor; Loss of ground."},
    Outcome{14,    16,  50, "50% casualties; 90% chance of commander lost or killed or important info or equipment taken by victor;  Army scatters unless a save versus will(DC 12) modified by surviving commander's CHR is successful.  If save is successful, troops are pushed into stronghold or pushed at least five miles away from battlefield."},
    Outcome{17,    20,  65, "65% casualties; army routed unless a will save DC 15 modified by surviving commander's charisma is made. 90% chance of commander lost or killed or important info or equipment taken by victor.  50% chance that a majority of survivors can be captured or hunted down."},
    Outcome{21,    23,  75, "75% casualties; army routed unless a will save DC 18 modified by surviving commander's charisma is made.  Remaining commanders captured or killed*.  Surviving 25% of army escape unless somehow trapped."},
    Outcome{24,    27,  85, "85% casualties; army routed unless a will save DC 20 modified by surviving commander's charisma is made.  Remaining commanders captured or killed*.  Surviving 15% of army escape unless somehow trapped."},
    Outcome{28,    30,  90, "90% casualties; army routed.  Remaining commanders captured or killed*.  Surviving 10% of army escape unless somehow trapped."},
    Outcome{31, 10000, 100, "Victor has totally destroyed his opponent; there are few survivors. Prisoners or worm food? "},
};
// clang-format on

template <std::size_t rows> constexpr bool leaves_no_gap(std::array<Outcome, rows> const& table)
{
    int next = 0;
    for (auto const& row : table) {
        if (row.first != next || row.last < row.first) return false;
        next = row.last + 1;
    }
    return true;
}

static_assert(leaves_no_gap(outcome_table));

/// The row of a margin, which is never negative; nullptr above 10000: no account and no casualties.
constexpr Outcome const* outcome_of(int WinMargin)
{
    for (auto const& row : outcome_table) {
        if (WinMargin <= row.last) return &row;
    }
    return nullptr;
}

/// The bonus that a margin earns for the victor's casualty roll: one for every 5 points, at most 5.
constexpr int casualty_roll_bonus(int WinMargin) { return std::min(WinMargin / 5, 5); }

} // namespace warhost
