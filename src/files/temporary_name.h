// The names of the temporary files of saves.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace warhost {

/// ".warhost-", the number in hexadecimal digits, ".tmp"; without a folder.
std::filesystem::path temporary_name(std::uint64_t number);

/// Whether temporary_name can have made this name. No army may be saved under such a name: a file of the user's that
/// has one, and that no save holds open, counts as left over from a killed save and is deleted.
bool is_temporary_name(std::basic_string_view<std::filesystem::path::value_type> name);

} // namespace warhost
