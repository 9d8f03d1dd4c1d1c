#include "battle/simulation.h"

#include <gtest/gtest.h>

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
}

} // namespace warhost
