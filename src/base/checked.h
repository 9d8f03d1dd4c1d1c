// Integer arithmetic whose overflow is found before it happens.
#pragma once

#include "base/failure.h"

#include <cstdint>
#include <limits>

namespace warhost {

/// value as a signed 32-bit integer. Throws the overflow Failure when it does not fit.
[[nodiscard]] inline std::int32_t checked_int32(std::int64_t value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (value < Limits::min() || value > Limits::max()) throw failure_of(Fault::overflow);
    return static_cast<std::int32_t>(value);
}

/// a + b. Throws the overflow Failure when the sum does not fit.
[[nodiscard]] inline std::int32_t checked_sum(std::int32_t a, std::int32_t b)
{
    return checked_int32(std::int64_t{a} + b);
}

/// a - b. Throws the overflow Failure when the difference does not fit.
[[nodiscard]] inline std::int32_t checked_difference(std::int32_t a, std::int32_t b)
{
    return checked_int32(std::int64_t{a} - b);
}

} // namespace warhost
