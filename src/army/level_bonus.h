// The experience bonus of the army whose average level is a multiple of the other's.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace warhost {

/// Bonus by the level quotient rounded to a whole number, 0 to 11.
inline constexpr std::array<std::int16_t, 12> level_bonuses{0, 0, 1, 3, 5, 7, 9, 11, 13, 15, 17, 20};

/// Bonus of an army of average level `level` against one of `other_level`: the quotient in single precision, below 1
/// taken as 0, at most 11, rounded with halves to even. 0 when the other level is 0 or a level is not finite.
inline std::int16_t level_bonus(float level, float other_level)
{
    if (!std::isfinite(level) || !std::isfinite(other_level) || other_level == 0) return 0;
    float quotient = level / other_level;
    if (quotient < 1) quotient = 0;
    if (quotient > 11) quotient = 11;
    return level_bonuses[static_cast<std::size_t>(std::nearbyint(quotient))];
}

} // namespace warhost
