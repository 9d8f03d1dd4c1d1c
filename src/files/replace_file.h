// The system's own part of replacing a file: the one place that goes beyond the standard library.
#pragma once

#include <filesystem>
#include <string_view>

namespace warhost {

/// Writes bytes to a temporary file beside target, flushes it to the disk, gives it target's permissions when target
/// exists, and renames it over target. Throws std::system_error; target is then as it was, the temporary gone. A
/// process that is killed may leave its temporary, which the next save into the folder clears away.
void replace_durably(std::filesystem::path const& target, std::string_view bytes);

} // namespace warhost
