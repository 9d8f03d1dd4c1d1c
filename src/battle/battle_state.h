// What the battle in progress has come to.
#pragma once

namespace warhost {

enum BattleWinner : int { side_a_won = 0, side_b_won = 1, tie = 2 };

constexpr BattleWinner winner_of(int ResultA, int ResultB)
{
    return ResultA > ResultB ? side_a_won : ResultA < ResultB ? side_b_won : tie;
}

/// Whose rows take the loser's percentage, and whose the victor's: 0 for Side A, 1 for Side B. On a tie Side A's take
/// the loser's.
constexpr int loser_index(BattleWinner Winner) { return Winner == side_a_won ? 1 : 0; }
constexpr int victor_index(BattleWinner Winner) { return 1 - loser_index(Winner); }

/// All zero before the first roll, so that Side A then counts as the winner.
struct BattleState {
    int ResultA = 0;
    int ResultB = 0;
    BattleWinner Winner = side_a_won;
    int WinMargin = 0;
    int LoserCasualty = 0; // percent
    int CasRangeLow = 0;   // percent of LoserCasualty
    int CasRangeHigh = 0;
    float VictorCasualty = 0; // percent

    bool operator==(BattleState const&) const = default;
};

} // namespace warhost
