// Limits that hold for numbers on the screen and for the rules that compute with them.
#pragma once

namespace warhost {

/// A number of a field such as a modifier or a result is read as -field_limit to field_limit.
inline constexpr int field_limit = 32000;

} // namespace warhost
