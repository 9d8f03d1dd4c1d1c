#include "battle/simulation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace warhost {

TEST(Tally, sums_what_each_side_suffered)
{
    Tally tally;
    for (int i = 0; i < 3; ++i) tally.count(side_a_won, 11, 37); // 45% and 16.65%
    for (int const share : {-7, 32000}) tally.count(tie, 0, share);
    EXPECT_DOUBLE_EQ(tally.mean_casualties(0), (3.0 * 16.65F + 2 * 10) / 5);
    EXPECT_DOUBLE_EQ(tally.mean_casualties(1), (3 * 45 + 0 + 11) / 5.0);
    EXPECT_EQ(std::pair(tally.histogram(0)[17], tally.histogram(1)[11]), std::pair(std::int64_t{3}, std::int64_t{1}));

    Tally thirty; // 10% and 20%, as often
    for (int const margin : {1, 5}) {
        for (int battle = 0; battle < 15; ++battle) thirty.count(side_a_won, margin, 0);
    }
    EXPECT_NEAR(thirty.casualty_margin(1), 1.96 * 5 / std::sqrt(29), 1e-4);
}

} // namespace warhost
