#include "battle/simulation.h"

#include "battle/victor_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace warhost {
namespace {

struct Odds {
    double wins_a = 0, wins_b = 0, ties = 0, casualties_a = 0, casualties_b = 0; // percent
};

/// The exact long run: a Markov chain over Side B's last die and the victor's roll shown (1, 20 or another, as 0).
/// What is carried over matters so little that a few rounds reach its stationary distribution.
class ExactOdds {
public:
    ExactOdds(int modifier_a, int modifier_b) : a_(modifier_a), b_(modifier_b)
    {
        Chances now{};
        now[place(1, 0)] = 1;
        for (int round = 0; round < 5; ++round) {
            odds = {};
            Chances next{};
            for (int die_b = 1; die_b <= 20; ++die_b)
                for (int const shown : {0, 1, 20}) fight(die_b, shown, now[place(die_b, shown)], next);
            now = next;
        }
    }

    Odds odds;

private:
    using Chances = std::array<double, 63>;
    static int place(int die_b, int shown) { return die_b * 3 + (shown == 20 ? 2 : shown == 1 ? 1 : 0); }

    struct Roll {
        VictorRow const* row;
        bool minus5, plus5;
        int shown;
    };

    static Roll judge(int shown, int bonus, bool minus5, bool plus5)
    {
        auto const* const row = victor_row_of({shown, shown - effective_bonus(bonus, minus5, plus5), minus5, plus5});
        if (row == nullptr) return {row, minus5, plus5, shown};
        return {row, minus5 || row->box == Box::minus5, plus5 || row->box == Box::plus5, shown};
    }

    void fight(int last_b, int last_shown, double chance, Chances& next)
    {
        int const shown = last_shown != 0 ? last_shown : 999999;
        for (int die_a = 1; die_a <= 20; ++die_a) {
            for (int die_b = 1; die_b <= 20; ++die_b) {
                Roll before{nullptr, false, false, 0};
                if (die_a + a_ == last_b + b_) before = judge(shown, 0, false, false);
                int const winner = winner_of(die_a + a_, die_b + b_);
                int const margin = std::abs(die_a + a_ - die_b - b_);
                if (winner == tie) before = judge(shown, 0, before.minus5, before.plus5);
                for (int die = 1; die <= 20; ++die) {
                    int const bonus = casualty_roll_bonus(margin);
                    auto const roll = [&](int natural, bool minus5, bool plus5) {
                        return judge(natural + effective_bonus(bonus, minus5, plus5), bonus, minus5, plus5);
                    };
                    Roll const first = roll(die, before.minus5, before.plus5);
                    bool const again = first.minus5 || first.plus5;
                    for (int second = 1; second <= (again ? 20 : 1); ++second) {
                        Roll const last = again ? roll(second, first.minus5, first.plus5) : first;
                        double const part = chance / (again ? 160000 : 8000);
                        end(winner, outcome_of(margin)->percent, *last.row, part);
                        next[place(die_b, last.shown)] += part;
                    }
                }
            }
        }
    }

    void end(int winner, double loser, VictorRow const& row, double part)
    {
        double const victor = winner == tie ? loser : loser * (row.low + row.high) / 200;
        (winner == tie ? odds.ties : winner == side_a_won ? odds.wins_a : odds.wins_b) += 100 * part;
        odds.casualties_a += part * (winner == side_a_won ? victor : loser);
        odds.casualties_b += part * (winner == side_a_won ? loser : victor);
    }

    int a_, b_;
};

TEST(Simulation, agrees_with_the_exact_odds)
{
    // clang-format off
    struct { int a, b; Odds known; } const rows[] = { // to four decimals; all 0: not known
        {0, 0, {47.5, 47.5, 5, 16.1089, 16.1089}}, {3, 1, {57.25, 38.25, 4.5, 13.7743, 19.0965}},
        {10, 0, {86.25, 11.25, 2.5, 10.7156, 37.1916}}, {25, 0, {}}, {-4, 7, {}}, {12, 15, {}}, {0, 19, {}},
    };
    // clang-format on
    constexpr int battles = 1000000;
    for (auto const& [a, b, known] : rows) {
        SCOPED_TRACE(std::to_string(a) + "/" + std::to_string(b));
        Odds const exact = ExactOdds{a, b}.odds;
        if (known.ties != 0) {
            EXPECT_NEAR(exact.wins_a, known.wins_a, 1e-6);
            EXPECT_NEAR(exact.wins_b, known.wins_b, 1e-6);
            EXPECT_NEAR(exact.casualties_a, known.casualties_a, 5e-5);
            EXPECT_NEAR(exact.casualties_b, known.casualties_b, 5e-5);
        }
        Generator generator{static_cast<std::uint64_t>(100 + a)};
        Simulation simulation{a, b, {}};
        simulation.fight(generator, battles);
        Tally const& tally = simulation.tally();
        for (auto const& [winner, percent] :
             {std::pair{side_a_won, exact.wins_a}, {side_b_won, exact.wins_b}, {tie, exact.ties}}) {
            double const error = std::sqrt(std::max(percent * (100 - percent), 0.0) / battles);
            EXPECT_NEAR(static_cast<double>(tally.won_by(winner)) * 100 / battles, percent, 4.5 * error + 1e-6);
        }
        for (auto const& [Index, expected] : {std::pair{0, exact.casualties_a}, {1, exact.casualties_b}})
            EXPECT_NEAR(tally.casualties(Index) / battles, expected, 4.5 * tally.casualty_margin(Index) / 1.96);
    }
}

TEST(Tally, sums_what_each_side_suffered)
{
    Tally tally;
    for (int i = 0; i < 3; ++i) tally.count(Tally::place_of(side_a_won, 11) + 37); // 45% and 16.65%
    tally.count(Tally::place_of(tie, 0) + 100);
    EXPECT_EQ(tally.battles(), 4);
    EXPECT_EQ(std::tuple(tally.won_by(side_a_won), tally.won_by(side_b_won), tally.won_by(tie)), std::tuple(3, 0, 1));
    EXPECT_DOUBLE_EQ(tally.casualties(0), 3.0 * 16.65F + 10);
    EXPECT_DOUBLE_EQ(tally.casualties(1), 3 * 45 + 10);
    EXPECT_EQ(std::pair(tally.histogram(0)[17], tally.histogram(1)[10]), std::pair(std::int64_t{3}, std::int64_t{1}));
}

} // namespace
} // namespace warhost
