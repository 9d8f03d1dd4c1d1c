#pragma once

#include <cstdlib>
#include <string_view>

/// Aborts if a condition does not hold, which the fuzzer reports like a finding of the sanitizers.
inline void require(bool holds)
{
    if (!holds) std::abort();
}

inline std::string_view as_text(unsigned char const* data, std::size_t size)
{
    return {reinterpret_cast<char const*>(data), size};
}
