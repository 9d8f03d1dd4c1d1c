#include "files/handle_windows.h"

#include "base/failure.h"

#include <array>
#include <string>
#include <system_error>
#include <utility>

namespace warhost {

namespace {

struct ErrorMeaning {
    DWORD error;
    std::errc meaning;
};

constexpr DWORD disk_quota_exceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which not every SDK declares

/// Where the library knows no meaning, or another than the user needs.
constexpr std::array error_meanings{
    ErrorMeaning{ERROR_INVALID_NAME, std::errc::invalid_argument},
    ErrorMeaning{ERROR_NOT_READY, std::errc::no_such_device},
    ErrorMeaning{ERROR_BAD_NETPATH, std::errc::no_such_device},
    ErrorMeaning{ERROR_NETNAME_DELETED, std::errc::no_link},
    ErrorMeaning{ERROR_UNEXP_NET_ERR, std::errc::no_link},
    ErrorMeaning{disk_quota_exceeded, std::errc::no_space_on_device},
    ErrorMeaning{ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    ErrorMeaning{ERROR_WRITE_FAULT, std::errc::io_error},
    ErrorMeaning{ERROR_GEN_FAILURE, std::errc::io_error},
    ErrorMeaning{ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
};

} // namespace

void fail(DWORD error)
{
    for (auto const& row : error_meanings) {
        if (error == row.error) throw std::system_error{std::make_error_code(row.meaning)};
    }
    throw std::system_error{static_cast<int>(error), std::system_category()};
}

void require(bool succeeded)
{
    if (!succeeded) fail(::GetLastError());
}

std::filesystem::path unlimited(std::filesystem::path const& path)
{
    constexpr std::size_t longest_name = 255;
    if (path.filename().native().size() > longest_name) fail(ERROR_INVALID_NAME);
    std::wstring full(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    auto const length = ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    require(length != 0 && length < full.size());
    full.resize(length);
    bool const names_a_device = full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)");
    if (names_a_device) return full;
    bool const is_shared = full.starts_with(LR"(\\)");
    return is_shared ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

bool File::open(std::filesystem::path const& path, DWORD access, DWORD sharing, DWORD disposition)
{
    handle_ = ::CreateFileW(path.c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return handle_ != INVALID_HANDLE_VALUE;
}

void File::close()
{
    auto* const open = std::exchange(handle_, INVALID_HANDLE_VALUE);
    if (open != INVALID_HANDLE_VALUE) ::CloseHandle(open);
}

void require_no_folder(std::filesystem::path const& path)
{
    DWORD const attributes = ::GetFileAttributesW(path.c_str());
    bool const is_folder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (is_folder) throw std::system_error{std::make_error_code(std::errc::is_a_directory)};
}

void require_ordinary(File const& file, std::filesystem::path const& path)
{
    if (::GetFileType(file.handle()) == FILE_TYPE_DISK) return;
    auto const utf8 = path.u8string();
    throw failure_of(Fault::not_a_file, std::string{utf8.begin(), utf8.end()});
}

} // namespace warhost
