// The system's own part of replacing a file: the one place that goes beyond the standard library.
#pragma once

#include <filesystem>
#include <string_view>

namespace warhost {

/// The names of temporary files, from number 0 on. No army may be saved under such a name: a file of this user's that
/// has one, and that no save holds open, is taken for what a killed save left, and deleted.
std::filesystem::path temporary_name(std::filesystem::path const& folder, int number);

/// Writes bytes to a temporary file beside target, flushes it to the disk, gives it target's permissions when target
/// exists, and renames it over target. Throws std::system_error (a filesystem_error with the folder's path when that
/// takes no new files); target is then as it was, the temporary gone. A process that is killed may leave its temporary,
/// which a later save into the folder clears away.
void replace_durably(std::filesystem::path const& target, std::string_view bytes);

} // namespace warhost
