#include "files/leftovers_linux.h"

#include "files/place_linux.h"
#include "files/temporary_name.h"

#include <chrono>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <unistd.h>

namespace warhost {

namespace {

void remove_abandoned(int folder, char const* name)
{
    auto const is_own = [](struct stat const& status) {
        return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1;
    };
    struct stat named = {};
    struct stat locked = {};
    auto const look = [&] { return ::fstatat(folder, name, &named, AT_SYMLINK_NOFOLLOW) == 0 && is_own(named); };
    if (!look()) return;
    // Network file systems grant exclusive locks only on descriptors open for writing.
    constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    Descriptor const file{uninterrupted([&] { return ::openat(folder, name, flags); })};
    if (!file.is_open() || ::flock(file.number(), LOCK_EX | LOCK_NB) != 0) return;
    // A name that still refers to the locked file is abandoned: its owner would have held the lock until renaming it.
    if (::fstat(file.number(), &locked) == 0 && look() && same_file(named, locked)) ::unlinkat(folder, name, 0);
}

} // namespace

void remove_leftovers(Descriptor const& folder)
{
    constexpr std::chrono::milliseconds longest_search{300};
    auto const end = std::chrono::steady_clock::now() + longest_search;
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    Descriptor listed{uninterrupted([&] { return ::openat(folder.number(), ".", flags); })};
    if (!listed.is_open()) return;
    std::unique_ptr<DIR, int (*)(DIR*)> const list{::fdopendir(listed.number()), ::closedir};
    if (!list) return;
    listed.release(); // the list closes it
    while (auto const* const entry = ::readdir(list.get())) {
        auto const* const name = static_cast<char const*>(entry->d_name);
        if (is_temporary_name(name)) remove_abandoned(folder.number(), name);
        if (std::chrono::steady_clock::now() > end) return;
    }
}

} // namespace warhost
