#include "files/descriptor_linux.h"

#include "base/failure.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace warhost {

namespace {

struct ErrorMeaning {
    int error;
    std::errc meaning;
};

/// Error codes without a name in std::errc.
constexpr std::array error_meanings{
    ErrorMeaning{EDQUOT, std::errc::no_space_on_device},
    ErrorMeaning{EHOSTDOWN, std::errc::host_unreachable},
    ErrorMeaning{ENOMEDIUM, std::errc::no_such_device},
    ErrorMeaning{EREMOTEIO, std::errc::io_error},
    ErrorMeaning{ESTALE, std::errc::no_link},
};

/// The kernel revokes a lease after 45 seconds by default.
constexpr std::chrono::seconds longest_lease{50};

void require_ordinary(struct stat const& status, std::filesystem::path const& path)
{
    if (S_ISDIR(status.st_mode)) fail(EISDIR);
    if (!S_ISREG(status.st_mode)) throw failure_of(Fault::not_a_file, path.native());
}

} // namespace

Descriptor::~Descriptor()
{
    // Not repeated when interrupted: Linux has released the number by then.
    if (is_open()) ::close(number_);
}

void fail(int error)
{
    for (auto const& row : error_meanings) {
        if (error == row.error) throw std::system_error{std::make_error_code(row.meaning)};
    }
    throw std::system_error{error, std::generic_category()};
}

void require(bool succeeded)
{
    if (!succeeded) fail(errno);
}

struct stat status_of(Descriptor const& file)
{
    struct stat status = {};
    require(::fstat(file.number(), &status) == 0);
    return status;
}

Descriptor open_ordinary(std::filesystem::path const& path, int access)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        require(errno == ENOENT);
        return Descriptor{};
    }
    require_ordinary(status, path); // merely opening a device can have an effect
    int const flags = access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    constexpr mode_t creates_nothing = 0;
    auto const open = [&] {
        return Descriptor{uninterrupted([&] { return ::open(path.c_str(), flags, creates_nothing); })};
    };
    Descriptor file = open();
    // Another program, such as a file server, holds a lease on the file and has now been asked to release it.
    auto const end = std::chrono::steady_clock::now() + longest_lease;
    while (!file.is_open() && errno == EAGAIN && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds{20});
        file = open();
    }
    require(file.is_open() || errno == ENOENT);
    if (file.is_open()) require_ordinary(status_of(file), path); // the path may lead elsewhere by now
    return file;
}

} // namespace warhost
