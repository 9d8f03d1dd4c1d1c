// Limits of the numbers on the screen.
#pragma once

namespace warhost {

/// Number fields such as modifiers and results are read as -field_limit to field_limit.
inline constexpr int field_limit = 32000;

} // namespace warhost
