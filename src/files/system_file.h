// Reading and replacing files, implemented for each platform. The functions throw std::system_error, or a Failure
// where the system has no error code; a filesystem_error carries the refused path when it is not the one given.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace warhost {

/// Whether path names something that exists and is no folder. Never fails: what cannot be asked is false.
bool is_file(std::filesystem::path const& path);

/// The bytes of the ordinary file that path leads to; errc::file_too_large for more than `most`. Never waits for a
/// pipe, a device or another process; does not change the file.
std::string read_ordinary_file(std::filesystem::path const& path, std::size_t most);

/// Writes bytes to a temporary file beside the file that path leads to, gives it that file's owner and permissions if
/// it exists, flushes it to the disk and renames it over that file. Refuses what the system would not let this user
/// write, and a symbolic link that another user placed in a shared folder. After a failure the old file is as it was
/// and the temporary one gone. A process that is killed may leave its temporary file, which a later save into the
/// folder removes.
void replace_durably(std::filesystem::path const& path, std::string_view bytes);

} // namespace warhost
