#include "files/place_linux.h"

#include "base/failure.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace warhost {

namespace fs = std::filesystem;

namespace {

Place place_in(int folder, fs::path const& folder_path, fs::path const& path)
{
    auto const way = path.has_parent_path() ? path.parent_path() : fs::path{"."};
    constexpr int flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    Place place{Descriptor{uninterrupted([&] { return ::openat(folder, way.c_str(), flags); })}, folder_path / way,
                path.filename()};
    require(place.folder.is_open());
    if (place.name.empty()) fail(EISDIR);
    return place;
}

/// In a folder that everyone may write, with the sticky bit, everyone may place a link. Followed blindly, it would turn
/// a save into it on a file that only the user may write. The kernel refuses such links too, but not on every machine.
bool is_trusted(struct stat const& link, struct stat const& folder)
{
    constexpr mode_t shared = S_ISVTX | S_IWOTH;
    return (folder.st_mode & shared) != shared || link.st_uid == ::geteuid() || link.st_uid == folder.st_uid;
}

} // namespace

Place place_of(fs::path const& path)
{
    constexpr int longest_chain = 40;
    Place place = place_in(AT_FDCWD, {}, path);
    for (int links = 0; links < longest_chain; ++links) {
        constexpr int flags = O_PATH | O_NOFOLLOW | O_CLOEXEC;
        Descriptor const entry{
            uninterrupted([&] { return ::openat(place.folder.number(), place.name.c_str(), flags); })};
        require(entry.is_open() || errno == ENOENT);
        if (!entry.is_open()) return place;
        auto const status = status_of(entry);
        if (!S_ISLNK(status.st_mode)) return place;
        if (!is_trusted(status, status_of(place.folder))) throw failure_of(Fault::foreign_link, path.native());
        std::array<char, PATH_MAX> target{};
        ssize_t const length = ::readlinkat(entry.number(), "", target.data(), target.size());
        require(!failed(length));
        place = place_in(place.folder.number(), place.folder_path,
                         std::string_view{target.data(), static_cast<std::size_t>(length)});
    }
    fail(ELOOP);
}

bool holds(Place const& place, Descriptor const& opened)
{
    struct stat named = {};
    if (::fstatat(place.folder.number(), place.name.c_str(), &named, AT_SYMLINK_NOFOLLOW) != 0) {
        require(errno == ENOENT);
        return !opened.is_open();
    }
    return opened.is_open() && same_file(named, status_of(opened));
}

bool same_file(struct stat const& one, struct stat const& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

} // namespace warhost
