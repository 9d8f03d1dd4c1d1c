// The victor's casualty roll: the range of the loser's percentage that it selects, and whether it must be rolled again.
#pragma once

#include <array>
#include <string_view>

namespace warhost {

/// A victor's casualty roll: natural is the die alone, roll the die with its bonus.
struct CasualtyRoll {
    int roll;
    int natural;
    bool minus5; // the -5 box was checked
    bool plus5;  // the +5 box was checked
};

enum class Box { none, minus5, plus5 };

/// Rolls that `applies` accepts mean `low` to `high` percent of the loser's percentage; `box` is checked afterwards.
struct VictorRow {
    bool (*applies)(CasualtyRoll const&);
    int low;
    int high;
    Box box;
    std::string_view heading; // of the account; most have none
    std::string_view account;
};

constexpr bool within(CasualtyRoll const& r, int first, int last) { return r.roll >= first && r.roll <= last; }

// clang-format off
/// Tried in this order; the first row that applies counts.
inline constexpr std::array victor_table{
    VictorRow{[](CasualtyRoll const& r) { return r.natural == 1 && !r.minus5; }, 100, 100, Box::minus5, "", "Roll again with -5 penalty.  If the result from the penalty is again 1 or below, the victor suffers 100 % of loser's casualty percentage; 50% chance a commander has been lost. If this result is due to consecutive natural ones, the victor loses 110 % of the loser's percentage, and there is a 75% chance a commander (NPC) has been lost."},
    VictorRow{[](CasualtyRoll const& r) { return r.natural == 1 && r.minus5; }, 110, 110, Box::minus5, "Consecutive Natural Ones!", "If this result is due to consecutive natural ones, the victor loses 110 % of the loser's percentage, and there is a 75% chance a commander (NPC) has been lost."},
    VictorRow{[](CasualtyRoll const& r) { return r.natural == 20 && !r.plus5; }, 2, 2, Box::plus5, "", "Roll again with +5 bonus.  If the result is again 20 or above, the victor suffers 2% of loser's casualty percentage. If this result is due to consecutive natural twenties the victor suffers no casualties and receives a +1 modifier to next combat roll within three days."},
    VictorRow{[](CasualtyRoll const& r) { return r.natural == 20 && r.plus5; }, 0, 0, Box::plus5, "Consecutive Natural Twenties!", "If this result is due to consecutive natural twenties the victor suffers no casualties and receives a +1 modifier to next combat roll within three days."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, -999, 1) && r.minus5; }, 100, 100, Box::none, "", "If the result from the penalty is again 1 or below, the victor suffers 100 % of loser's casualty percentage; 50% chance a commander has been lost."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, -999, 1) && !r.minus5; }, 90, 90, Box::none, "", "90% of loser's casualties, 25% chance a commander has been lost."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, 2, 5); }, 20, 80, Box::none, "", "20% to 80% of loser's casualty percentage; 15% chance a commander (NPC) has been lost."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, 6, 11); }, 10, 60, Box::none, "", "10% to 60% of loser's casualty percentage; 10% chance a commander (NPC) has been lost."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, 12, 15); }, 10, 30, Box::none, "", "10% to 30% of loser's casualty percentage."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, 16, 19); }, 5, 20, Box::none, "", "5% to 20% of loser's casualty percentage."},
    VictorRow{[](CasualtyRoll const& r) { return within(r, 20, 999) && r.plus5; }, 2, 2, Box::none, "", "If the result is again 20 or above, the victor suffers 2% of loser's casualty percentage. "},
    VictorRow{[](CasualtyRoll const& r) { return within(r, 20, 999) && !r.plus5; }, 5, 5, Box::none, "", "5% of loser's casualty percentage. "},
};
// clang-format on

static_assert(victor_table.size() == 12);

/// The row of a roll; nullptr beyond -999..999 without a natural 1 or 20: then there is no account and the range does
/// not change.
constexpr VictorRow const* victor_row_of(CasualtyRoll const& roll)
{
    for (auto const& row : victor_table) {
        if (row.applies(roll)) return &row;
    }
    return nullptr;
}

/// These replace the row's account and range on a tie.
inline constexpr std::string_view tie_account = "Tie!";
inline constexpr int tie_percent = 100;

/// What is added to the casualty die: the bonus typed or earned, and 5 up or down for each checked box.
constexpr int effective_bonus(int bonus, bool minus5, bool plus5) { return bonus + (plus5 ? 5 : 0) - (minus5 ? 5 : 0); }

/// The victor's casualties, percent of its soldiers: LoserCasualty x share / 100, share in percent.
constexpr float victor_casualty(int LoserCasualty, int share)
{
    return static_cast<float>(LoserCasualty * share / 100.0);
}

} // namespace warhost
