// Converts casualty percentages to soldiers lost.
#pragma once

#include <cstdint>

namespace warhost {

/// Losses of one unit row: soldiers x percent / 100 as a whole number, halves away from zero.
/// percent: whole percent, 0 to 110 by the rules, any 16-bit value when typed. soldiers: negative after more
/// losses than soldiers were applied; the loss is then negative too. Never fails; nothing is limited at zero.
constexpr std::int64_t row_loss(std::int32_t soldiers, std::int32_t percent)
{
    std::int64_t const hundredths = std::int64_t{soldiers} * percent;
    return (hundredths + (hundredths < 0 ? -50 : 50)) / 100;
}

} // namespace warhost
