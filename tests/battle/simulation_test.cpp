#include "battle/simulation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <tuple>

namespace warhost {

TEST(Simulation, agrees_with_the_exact_odds_in_the_long_run)
{
    std::tuple<int, int, std::array<double, 3>, std::array<double, 2>> const rows[] = {
        {0, 0, {47.5, 47.5, 5}, {16.1089, 16.1089}},
        {3, 1, {57.25, 38.25, 4.5}, {13.7743, 19.0965}},
        {10, 0, {86.25, 11.25, 2.5}, {10.7156, 37.1916}}};
    constexpr int battles = 4000000;
    for (auto const& [a, b, wins, casualties] : rows) {
        SCOPED_TRACE(a);
        Generator generator{static_cast<std::uint64_t>(100 + a)};
        Simulation simulation{a, b, {}};
        simulation.fight(generator, battles);
        Tally const& tally = simulation.tally();
        for (auto const winner : {side_a_won, side_b_won, tie}) {
            double const won = tally.percent_won(winner), percent = wins[winner];
            EXPECT_NEAR(won, percent, 4.5 * std::sqrt(percent * (100 - percent) / battles)) << winner;
        }
        for (int const Index : {0, 1}) {
            double const error = tally.casualty_margin(Index) / 1.96;
            EXPECT_NEAR(tally.mean_casualties(Index), casualties[Index], 4.5 * error) << Index;
        }
    }
}

TEST(Tally, sums_what_each_side_suffered)
{
    Tally tally;
    for (int i = 0; i < 3; ++i) tally.count(side_a_won, 11, 37); // 45% and 16.65%
    for (int const share : {-7, 32000}) tally.count(tie, 0, share);
    EXPECT_DOUBLE_EQ(tally.mean_casualties(0), (3.0 * 16.65F + 2 * 10) / 5);
    EXPECT_DOUBLE_EQ(tally.mean_casualties(1), (3 * 45 + 0 + 11) / 5.0);
    EXPECT_EQ(std::pair(tally.histogram(0)[17], tally.histogram(1)[11]), std::pair(std::int64_t{3}, std::int64_t{1}));
}

} // namespace warhost
