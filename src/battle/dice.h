// What a random value turns into.
#pragma once

#include <cstdint>

namespace warhost {

/// A whole number, uniform over low to high, both included: floor(r x (high - low + 1)) + low, r one value of the
/// source. low <= high. A source that has draw() gives r times 2^32 by it.
template <class Source> int roll_between(Source& random, int low, int high)
{
    auto const count = static_cast<std::uint32_t>(high - low + 1);
    if constexpr (requires { random.draw(); }) {
        // A value of 32 bits times a small count is exact in a double, so integers give the same number, and faster.
        return static_cast<int>((std::uint64_t{random.draw()} * count) >> 32U) + low;
    } else {
        return static_cast<int>(random.next() * count) + low;
    }
}

inline constexpr int die_sides = 20;

template <class Source> int roll_d20(Source& random) { return roll_between(random, 1, die_sides); }

} // namespace warhost
