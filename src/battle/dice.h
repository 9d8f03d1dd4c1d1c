// Converts random values to dice and percentages.
#pragma once

#include <cstdint>

namespace warhost {

/// A whole number, uniform over low to high, both included: floor(r x (high - low + 1)) + low, r one value of the
/// source. low <= high. draw(), where the source has it, returns r times 2^32.
template <class Source> int roll_between(Source& random, int low, int high)
{
    auto const count = static_cast<std::uint32_t>(high - low + 1);
    if constexpr (requires { random.draw(); }) {
        // A 32-bit value times a small count is exact in a double, so integers give the same result, faster.
        return static_cast<int>((std::uint64_t{random.draw()} * count) >> 32U) + low;
    } else {
        return static_cast<int>(random.next() * count) + low;
    }
}

inline constexpr int die_sides = 20;

template <class Source> int roll_d20(Source& random) { return roll_between(random, 1, die_sides); }

} // namespace warhost
