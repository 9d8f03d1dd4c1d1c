#include "files/system_file.h"

#include "files/handle_windows.h"

#include <system_error>

namespace warhost {

bool is_file(std::filesystem::path const& path)
{
    try {
        DWORD const attributes = ::GetFileAttributesW(unlimited(path).c_str());
        return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    } catch (std::system_error const&) { // no name for a file
        return false;
    }
}

std::string read_ordinary_file(std::filesystem::path const& path, std::size_t most)
{
    auto const place = unlimited(path);
    require_no_folder(place);
    File file;
    constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    require(file.open(place, GENERIC_READ, share_all, OPEN_EXISTING));
    require_ordinary(file, path);
    std::string bytes;
    std::string block(std::size_t{64} * 1024, '\0');
    while (bytes.size() <= most) {
        DWORD count = 0;
        require(::ReadFile(file.handle(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr) != 0);
        if (count == 0) return bytes;
        bytes.append(block, 0, count);
    }
    fail(ERROR_FILE_TOO_LARGE);
}

} // namespace warhost
