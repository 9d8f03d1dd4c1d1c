#include "files/whole_file.h"

#include "files/system_fault.h"
#include "files/system_file.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace warhost {

namespace fs = std::filesystem;

namespace {

fs::path path_of(std::string const& utf8)
{
    // The system would treat a null character as the end of the path.
    if (utf8.find('\0') != std::string::npos) throw failure_of(Fault::bad_name, utf8);
    try {
        return {std::u8string{utf8.begin(), utf8.end()}};
    } catch (std::system_error const&) { // where paths are no bytes
        throw failure_of(Fault::bad_name, utf8);
    }
}

} // namespace

bool FileExists(std::string const& path)
{
    try {
        return is_file(path_of(path));
    } catch (Failure const&) {
        return false;
    }
}

std::string read_file(std::string const& path)
{
    try {
        return read_ordinary_file(path_of(path), most_bytes_read);
    } catch (std::system_error const& error) {
        throw file_failure(error.code(), path);
    }
}

void replace_file(std::string const& path, std::string_view bytes)
{
    try {
        replace_durably(path_of(path), bytes);
    } catch (std::system_error const& error) {
        // The file itself need not exist yet.
        if (error.code() == std::errc::no_such_file_or_directory) throw failure_of(Fault::folder_not_found, path);
        auto const* const other = dynamic_cast<fs::filesystem_error const*>(&error);
        auto const culprit = other != nullptr ? other->path1().u8string() : std::u8string{};
        throw file_failure(error.code(), culprit.empty() ? path : std::string{culprit.begin(), culprit.end()});
    }
}

} // namespace warhost
