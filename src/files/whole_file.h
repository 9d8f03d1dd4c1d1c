// Reading a file, and replacing one so that its path always holds either the old file or the new one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace warhost {

/// Whether path (UTF-8) names something that exists and is no folder. Never fails: what cannot be asked is false.
[[nodiscard]] bool FileExists(std::string const& path);

/// No army and no list comes near this many bytes.
inline constexpr std::size_t most_bytes_read = std::size_t{64} << 20U;

/// The bytes of an ordinary file, opened for reading only. Throws a Failure that names the path and the cause; a file
/// of more than most_bytes_read is refused.
[[nodiscard]] std::string read_file(std::string const& path);

/// Puts bytes in place of the file at path, or makes it: written to a temporary file in the same folder, flushed to
/// the disk, renamed over path. A symbolic link keeps pointing to its target, which is replaced; an existing file's
/// owner and permissions are kept as far as the system lets them be given, and never widened. Throws a Failure that
/// names the path and the cause; the old file is then whole and no temporary file remains.
void replace_file(std::string const& path, std::string_view bytes);

} // namespace warhost
