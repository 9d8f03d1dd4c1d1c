#include "files/system_file.h"

#include "base/failure.h"
#include "files/descriptor_linux.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <string>
#include <system_error>
#include <unistd.h>

namespace warhost {

bool is_file(std::filesystem::path const& path)
{
    std::error_code error;
    auto const status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

std::string read_ordinary_file(std::filesystem::path const& path, std::size_t most)
{
    auto const file = open_ordinary(path, O_RDONLY);
    if (!file.is_open()) fail(ENOENT);
    std::string bytes;
    std::string block(std::size_t{64} * 1024, '\0');
    while (bytes.size() <= most) {
        ssize_t const count = uninterrupted([&] { return ::read(file.number(), block.data(), block.size()); });
        // Some files under /proc look ordinary but block their readers.
        if (failed(count) && errno == EAGAIN) throw failure_of(Fault::not_a_file, path.native());
        require(!failed(count));
        if (count == 0) return bytes;
        bytes.append(block, 0, static_cast<std::size_t>(count));
    }
    fail(EFBIG);
}

} // namespace warhost
