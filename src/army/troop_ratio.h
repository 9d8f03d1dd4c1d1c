// The comparison of two armies by their number of soldiers.
#pragma once

#include "army/value_conversion.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace warhost {

/// larger / smaller: 1 when both are 0, 999 when the smaller army has no soldiers (or fewer). larger >= smaller.
inline double troop_ratio(std::int32_t larger, std::int32_t smaller)
{
    if (larger == 0 && smaller == 0) return 1.0;
    return smaller > 0 ? static_cast<double>(larger) / smaller : 999.0;
}

/// Bonus of the larger army: one for every half step of the ratio above 1, at most 20.
inline std::int16_t ratio_bonus(std::int32_t larger, std::int32_t smaller)
{
    return static_cast<std::int16_t>(std::min(std::floor(2 * troop_ratio(larger, smaller)) - 2, 20.0));
}

/// The ratio as the larger army's screen shows it: "2.5:1", the decimal quotient with halves away from zero, or
/// "> 99:1" above 99.
inline std::string ratio_text(std::int32_t larger, std::int32_t smaller, NumberFormat const& format)
{
    if (troop_ratio(larger, smaller) > 99) return "> 99:1";
    std::int64_t const tenths = smaller > 0 ? (std::int64_t{larger} * 20 + smaller) / (std::int64_t{smaller} * 2) : 10;
    return tenths_text(tenths, format) + ":1";
}

} // namespace warhost
