// What a failing step throws, as a value.
#pragma once

#include "base/failure.h"

namespace warhost {

/// The failure that `run` ends with; number 0 when it succeeds.
template <class Run, class... Arguments> Failure caught(Run run, Arguments const&... arguments)
{
    try {
        run(arguments...);
    } catch (Failure const& failure) {
        return failure;
    }
    return {};
}

constexpr std::int32_t number_of(Fault fault) { return static_cast<std::int32_t>(fault); }

} // namespace warhost
