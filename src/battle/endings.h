// The ways in which a battle can end: counted in a sample, weighed in the exact odds.
#pragma once

#include "battle/battle_state.h"
#include "battle/outcome_table.h"
#include "battle/victor_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <type_traits>

namespace warhost {

inline constexpr int highest_share = 110; // percent of the loser's percentage

/// One value for each ending: winner, outcome row, and the victor's share of the loser's percentage. The percentages
/// and means are not defined while all values are 0.
template <class Value> class Endings {
public:
    using Sum = std::conditional_t<std::is_integral_v<Value>, std::int64_t, double>;

    /// The value of a battle won by `margin`, 0 or more. A share beyond 0 to 110 counts as the nearer end.
    Value at(BattleWinner winner, int margin, int share) const
    {
        return values[place_of(winner, margin) + static_cast<std::size_t>(std::clamp(share, 0, highest_share))];
    }

    Sum total() const { return std::accumulate(values.begin(), values.end(), Sum{}); }

    /// How often `winner` won, in percent of the total.
    double percent_won(BattleWinner winner) const
    {
        auto const* const first = values.data() + place_of(winner, 0);
        auto const won = std::accumulate(first, first + outcomes * shares, Sum{});
        return static_cast<double>(won) / static_cast<double>(total()) * 100;
    }

    /// Mean percentage that a side suffered, Index 0 for Side A and 1 for Side B: the loser's whole, the victor's in
    /// single precision, summed in double precision.
    double mean_casualties(int Index) const
    {
        double sum = 0;
        visit_casualties(Index, [&](Value value, double percent) { sum += static_cast<double>(value) * percent; });
        return sum / static_cast<double>(total());
    }

    /// The values by the percentage that a side suffered, rounded to whole percent, 0 to 110.
    std::array<Sum, highest_share + 1> histogram(int Index) const
    {
        std::array<Sum, highest_share + 1> bars{};
        visit_casualties(Index, [&](Value value, double percent) {
            bars.at(static_cast<std::size_t>(std::lround(percent))) += value;
        });
        return bars;
    }

protected:
    static constexpr std::size_t shares = highest_share + 1;
    static constexpr std::size_t outcomes = outcome_table.size() + 1; // the last: no row
    static constexpr std::size_t winners = 3;

    /// Calls visit(value, percentage) for each ending whose value is not 0.
    template <class Visitor> void visit_casualties(int Index, Visitor visit) const
    {
        for (std::size_t place = 0; place < values.size(); ++place) {
            if (values[place] == Value{}) continue;
            auto const outcome = place / shares % outcomes;
            int const loser = outcome < outcome_table.size() ? outcome_table.at(outcome).percent : 0;
            bool const a_won = place / shares / outcomes == side_a_won;
            bool const victor = a_won == (Index == 0);
            visit(values[place],
                  victor ? victor_casualty(loser, static_cast<int>(place % shares)) : static_cast<float>(loser));
        }
    }

    /// Where the shares of a battle that `winner` won by `margin` begin.
    static std::size_t place_of(BattleWinner winner, int margin)
    {
        Outcome const* const row = outcome_of(margin);
        auto const outcome = row != nullptr ? static_cast<std::size_t>(row - outcome_table.data()) : outcomes - 1;
        return (static_cast<std::size_t>(winner) * outcomes + outcome) * shares;
    }

    std::array<Value, winners * outcomes * shares> values{};
};

} // namespace warhost
