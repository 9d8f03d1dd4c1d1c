#pragma once

#include <cstdlib>
#include <string_view>

/// What the fuzzer looks for, beside what the sanitizers find.
inline void require(bool holds)
{
    if (!holds) std::abort();
}

inline std::string_view as_text(unsigned char const* data, std::size_t size)
{
    return {reinterpret_cast<char const*>(data), size};
}
