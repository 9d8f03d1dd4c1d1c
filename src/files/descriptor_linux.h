// File descriptors and system calls of Linux.
#pragma once

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <utility>

namespace warhost {

constexpr bool failed(auto result_of_system_call) { return result_of_system_call == -1; }

/// Closes its file at the end. Errors of closing are not reported: what must last has been flushed.
class Descriptor {
public:
    /// number: of the open file, or -1.
    explicit Descriptor(int number = none) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor();

    bool is_open() const { return number_ != none; }
    int number() const { return number_; }
    int release() { return std::exchange(number_, none); }

private:
    static constexpr int none = -1;
    int number_;
};

/// Repeats a system call as long as a signal interrupts it.
template <class Call> auto uninterrupted(Call call)
{
    auto result = call();
    while (failed(result) && errno == EINTR) result = call();
    return result;
}

[[noreturn]] void fail(int error);

/// Fails with errno unless the call before it succeeded.
void require(bool succeeded);

struct stat status_of(Descriptor const& file);

/// Opens the file that path leads to through its links; access: O_RDONLY or O_WRONLY. Not open when nothing is there.
/// A folder, pipe, device or socket is refused, without being opened when it was there from the start, and never
/// waited for. A lease that another program has on the file is waited for, at most 50 seconds.
Descriptor open_ordinary(std::filesystem::path const& path, int access);

} // namespace warhost
