#include "files/whole_file.h"

#include "files/replace_file.h"
#include "files/system_fault.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <new>

namespace warhost {

namespace fs = std::filesystem;

namespace {

constexpr std::u8string_view temporary_prefix = u8".warhost-";
constexpr std::u8string_view temporary_suffix = u8".tmp";

bool is_temporary_name(fs::path const& name)
{
    std::u8string const text = name.u8string();
    return text.starts_with(temporary_prefix) && text.ends_with(temporary_suffix);
}

fs::path path_of(std::string const& utf8)
{
    // The system would take a null character for the end.
    if (utf8.find('\0') != std::string::npos) throw failure_of(Fault::bad_name, utf8);
    try {
        return {std::u8string{utf8.begin(), utf8.end()}};
    } catch (std::system_error const&) { // where paths are no bytes
        throw failure_of(Fault::bad_name, utf8);
    }
}

std::error_code last_error(std::errc otherwise)
{
    return errno != 0 ? std::error_code{errno, std::generic_category()} : std::make_error_code(otherwise);
}

/// The file that a path leads to through its symbolic links; the last one may name a file that does not exist yet.
fs::path link_target(fs::path path)
{
    constexpr int longest_chain = 40;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path)); ++links) {
        if (links == longest_chain) {
            throw std::system_error{std::make_error_code(std::errc::too_many_symbolic_link_levels)};
        }
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

} // namespace

fs::path temporary_name(fs::path const& folder, int number)
{
    std::string const digits = std::to_string(number);
    return folder / std::u8string{temporary_prefix}.append(digits.begin(), digits.end()).append(temporary_suffix);
}

bool FileExists(std::string const& path)
{
    try {
        std::error_code error;
        auto const status = fs::status(path_of(path), error);
        return fs::exists(status) && !fs::is_directory(status);
    } catch (Failure const&) {
        return false;
    }
}

std::string read_file(std::string const& path)
{
    std::error_code error;
    auto const status = fs::status(path_of(path), error);
    if (error) throw file_failure(error, path);
    if (!fs::exists(status)) throw failure_of(Fault::file_not_found, path);
    if (fs::is_directory(status)) throw failure_of(Fault::is_a_folder, path);
    if (!fs::is_regular_file(status)) throw failure_of(Fault::not_a_file, path);

    errno = 0;
    std::ifstream file{path_of(path), std::ios::binary};
    if (!file) throw file_failure(last_error(std::errc::io_error), path);
    std::string bytes;
    std::string block(std::size_t{64} * 1024, '\0');
    while (bytes.size() <= most_bytes_read && file) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        bytes.append(block, 0, static_cast<std::size_t>(file.gcount()));
    }
    if (file.bad()) throw file_failure(last_error(std::errc::io_error), path);
    if (bytes.size() > most_bytes_read) throw failure_of(Fault::too_large, path);
    return bytes;
}

void replace_file(std::string const& path, std::string_view bytes)
{
    try {
        fs::path const target = link_target(path_of(path));
        auto const status = fs::status(target);
        if (fs::is_directory(status)) throw failure_of(Fault::is_a_folder, path);
        if (fs::exists(status) && !fs::is_regular_file(status)) throw failure_of(Fault::not_a_file, path);
        if (is_temporary_name(target.filename())) throw failure_of(Fault::bad_name, path);
        replace_durably(target, bytes);
    } catch (std::system_error const& error) {
        // The file itself need not exist yet.
        if (error.code() == std::errc::no_such_file_or_directory) throw failure_of(Fault::folder_not_found, path);
        auto const* const other = dynamic_cast<fs::filesystem_error const*>(&error);
        auto const culprit = other != nullptr ? other->path1().u8string() : std::u8string{};
        throw file_failure(error.code(), culprit.empty() ? path : std::string{culprit.begin(), culprit.end()});
    }
}

} // namespace warhost
