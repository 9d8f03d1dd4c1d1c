#include "battle/odds.h"
#include "battle/simulation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>

namespace warhost {
namespace {

/// The chance of each ending by plain loops over all dice, one battle after another until what is carried over no
/// longer changes.
struct Enumeration {
    using Checked = std::array<bool, 2>; // -5, +5

    double chances[3][outcome_table.size() + 1][highest_share + 1]{}; // winner, outcome row, share

    Enumeration(int modifier_a, int modifier_b)
    {
        std::map<std::pair<int, int>, double> before, after{{{0, 0}, 1}}; // Side B's result and the roll shown
        for (double change = 1; change > 1e-12;) {
            double sum = 0, moved = 0; // the sum is 1 but for rounding, which would add up
            for (auto const& [shown, chance] : after) sum += chance;
            for (auto& [shown, chance] : after) moved += std::abs((chance /= sum) - before[shown]);
            change = moved;
            before = std::exchange(after, {});
            std::fill_n(&chances[0][0][0], sizeof chances / sizeof(double), 0);
            for (int die_a = 1; die_a <= 20; ++die_a) {
                for (int die_b = 1; die_b <= 20; ++die_b) {
                    int const a = std::min(modifier_a + die_a, 32000), b = std::min(modifier_b + die_b, 32000);
                    std::array<double, 4> boxes{};
                    for (auto const& [shown, chance] : before) {
                        Checked checked{};
                        if (a == shown.first) evaluate(shown.second, 0, checked);
                        if (a == b) evaluate(shown.second, 0, checked);
                        boxes.at(checked[0] + 2 * checked[1]) += chance / 400;
                    }
                    for (unsigned k = 0; k < boxes.size(); ++k)
                        if (boxes.at(k) > 0) roll_victor(a, b, {k % 2 == 1, k > 1}, boxes.at(k), 1, after);
                }
            }
        }
    }

    static VictorRow const& evaluate(int roll, int bonus, Checked& checked)
    {
        auto const [minus5, plus5] = checked;
        VictorRow const& row = *victor_row_of({roll, roll - effective_bonus(bonus, minus5, plus5), minus5, plus5});
        checked = {minus5 || row.box == Box::minus5, plus5 || row.box == Box::plus5};
        return row;
    }

    void roll_victor(int a, int b, Checked before, double chance, int rerolls, auto& after)
    {
        Outcome const* const outcome = outcome_of(std::abs(a - b));
        int const bonus = casualty_roll_bonus(std::abs(a - b));
        for (int die = 1; die <= 20; ++die) {
            Checked checked = before;
            int const roll = die + effective_bonus(bonus, checked[0], checked[1]);
            VictorRow const& row = evaluate(roll, bonus, checked);
            if (rerolls > 0 && checked != Checked{}) {
                roll_victor(a, b, checked, chance / 20, rerolls - 1, after);
                continue;
            }
            after[{b, roll}] += chance / 20;
            int const low = a == b ? 100 : row.low, high = a == b ? 100 : row.high;
            auto& shares =
                chances[winner_of(a, b)][outcome != nullptr ? outcome - outcome_table.data() : outcome_table.size()];
            for (int share = low; share <= high; ++share) shares[share] += chance / 20 / (high - low + 1);
        }
    }
};

/// Calls visit(winner, row, margin, share) for each ending, with a margin of the row.
void visit_endings(auto const& visit)
{
    for (auto const winner : {side_a_won, side_b_won, tie})
        for (std::size_t row = 0; row <= outcome_table.size(); ++row)
            for (int share = 0; share <= highest_share; ++share)
                visit(winner, row, row < outcome_table.size() ? outcome_table.at(row).first : 10001, share);
}

TEST(Odds, agree_with_an_enumeration_of_all_dice)
{
    for (auto const& [a, b] : {std::pair{0, 0}, {2, 5}, {25, 0}, {31985, 31990}, {31999, 32000}, {20000, -20000}}) {
        SCOPED_TRACE(testing::Message() << a << "/" << b);
        Odds const odds{a, b};
        Enumeration const all{a, b};
        visit_endings([&](BattleWinner winner, std::size_t row, int margin, int share) {
            ASSERT_NEAR(odds.at(winner, margin, share), all.chances[winner][row][share], 1e-11);
        });
        EXPECT_NEAR(odds.total(), 1, 1e-12);
    }
}

TEST(Odds, depend_on_the_difference_alone_and_mirror_when_the_sides_change_places)
{
    for (int const difference : {0, 1, 7, 25, 12000}) {
        Odds const odds{difference, 0}, shifted{difference - 9000, -9000}, mirrored{0, difference};
        visit_endings([&](BattleWinner winner, std::size_t, int margin, int share) {
            auto const other = winner == tie ? tie : winner == side_a_won ? side_b_won : side_a_won;
            ASSERT_EQ(odds.at(winner, margin, share), shifted.at(winner, margin, share));
            ASSERT_NEAR(odds.at(winner, margin, share), mirrored.at(other, margin, share), 1e-12);
        });
    }
}

TEST(Simulation, approaches_the_odds_of_every_ending)
{
    constexpr int battles = 4000000;
    std::uint64_t seed = 100;
    for (auto const& [a, b] : {std::pair{0, 0}, {3, 1}, {10, 0}, {0, 7}, {25, 0}, {-3, 4}, {31990, 32000}}) {
        Generator generator{seed++};
        Simulation simulation{a, b, {}};
        simulation.fight(generator, battles);
        Odds const odds{a, b};
        double chi_square = 0, expected = 0, observed = 0, cells = 0;
        visit_endings([&](BattleWinner winner, std::size_t, int margin, int share) {
            double const chance = odds.at(winner, margin, share);
            auto const count = simulation.tally().at(winner, margin, share);
            EXPECT_TRUE(chance > 0 || count == 0) << "an impossible ending";
            expected += chance * battles;
            observed += count;
            if (expected < 10) return; // rare endings count together
            chi_square += (observed - expected) * (observed - expected) / expected;
            cells += 1;
            expected = observed = 0;
        });
        // Chance exceeds the limit once in 30,000 samples (Wilson and Hilferty's approximation, z = 4).
        double const freedom = cells - 1, spread = 2 / (9 * freedom);
        EXPECT_LT(chi_square, freedom * std::pow(1 - spread + 4 * std::sqrt(spread), 3)) << a << "/" << b;
    }
}

} // namespace
} // namespace warhost
