#include "files/system_file.h"

#include "files/descriptor_linux.h"
#include "files/leftovers_linux.h"
#include "files/place_linux.h"
#include "files/temporary_name.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <linux/limits.h>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace warhost {

namespace {

namespace fs = std::filesystem;

/// A lock that lasts until the descriptor is closed, by the system at the latest. Denied only when another save holds
/// it: without lock support every attempt succeeds.
bool lock(Descriptor const& file) { return ::flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

std::uint64_t random_number()
{
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof number, 0) == sizeof number) return number;
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

/// A new file beside the one to be replaced. Nameless, nothing of it stays behind whatever happens before it is put in
/// place; but not every file system knows such files, and not every system lets them have a name afterwards.
class NewFile {
public:
    NewFile(Place const& place, mode_t mode) : place_(place), mode_(mode) {}
    NewFile(NewFile const&) = delete;
    NewFile& operator=(NewFile const&) = delete;
    ~NewFile()
    {
        if (!name_.empty()) ::unlinkat(folder(), name_.c_str(), 0);
    }

    /// False where there are no nameless files, or no files at all.
    bool open_nameless()
    {
        constexpr int flags = O_TMPFILE | O_WRONLY | O_CLOEXEC;
        file_ = Descriptor{uninterrupted([&] { return ::openat(folder(), ".", flags, mode_); })};
        return file_.is_open() && lock(file_);
    }

    void open_named()
    {
        bool const opened = find_name([&] { return create(); });
        // It is the folder that a new file was not allowed in.
        if (!opened && (errno == EACCES || errno == EROFS)) {
            throw fs::filesystem_error{{}, place_.folder_path, {errno, std::generic_category()}};
        }
        require(opened);
    }

    /// The owner and the rights of the file to be replaced, as far as the system lets them be given; never more rights,
    /// not even for a moment. They go from the owner to the mode, because a change of owner clears the set-id bits.
    void take_over_rights(Descriptor const& replaced) const
    {
        constexpr char const* access_list = "system.posix_acl_access"; // what further users and groups may do
        auto const has_none = [](auto result) { return failed(result) && (errno == ENODATA || errno == ENOTSUP); };
        int const removed = ::fremovexattr(file_.number(), access_list); // the folder may have given it one of its own
        bool const is_free = removed == 0 || has_none(removed);
        auto const old = status_of(replaced);
        auto own = status_of(file_);
        if (own.st_uid != old.st_uid || own.st_gid != old.st_gid) {
            // Only the privileged may give a file away; the group may be any that the user is a member of.
            constexpr auto unchanged = static_cast<uid_t>(-1);
            auto const give = [&](uid_t owner) {
                return uninterrupted([&] { return ::fchown(file_.number(), owner, old.st_gid); }) == 0;
            };
            if (!give(old.st_uid)) give(unchanged);
            own = status_of(file_);
        }
        bool const same_owner = own.st_uid == old.st_uid;
        bool const same_group = own.st_gid == old.st_gid;

        std::string list(XATTR_SIZE_MAX, '\0');
        ssize_t const size = ::fgetxattr(replaced.number(), access_list, list.data(), list.size());
        bool const no_list = is_free && has_none(size); // any other error may hide a list
        bool const same_list = no_list || (!failed(size) && same_group &&
                                           ::fsetxattr(file_.number(), access_list, list.data(), size, 0) == 0);

        mode_t mode = old.st_mode & 07777U;
        if (!same_owner || !same_group) mode &= 0777U;
        // Members of the old group now count as others.
        if (!same_group) mode &= S_IRWXU | (S_IRWXO & mode >> 3U);
        if (!same_list) mode &= ~static_cast<mode_t>(S_IRWXG | S_IRWXO);
        bool const given = uninterrupted([&] { return ::fchmod(file_.number(), mode); }) == 0;
        require(given || errno == EPERM || errno == ENOTSUP || errno == ENOSYS);
    }

    void write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            ssize_t const count = uninterrupted([&] { return ::write(file_.number(), bytes.data(), bytes.size()); });
            require(!failed(count));
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void flush() const
    {
        require(uninterrupted([&] { return ::fsync(file_.number()); }) == 0);
    }

    /// False where a nameless file cannot have a name; nothing has happened then.
    bool put_in_place()
    {
        if (name_.empty()) {
            if (link_to(place_.name)) return true;
            if (errno != EEXIST || !find_name([&] { return link_to(name_); })) return false;
        }
        require(::renameat(folder(), name_.c_str(), folder(), place_.name.c_str()) == 0);
        name_.clear();
        return true;
    }

private:
    int folder() const { return place_.folder.number(); }

    /// A locked file under name_; false, with errno, when there is none.
    bool create()
    {
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        Descriptor file{uninterrupted([&] { return ::openat(folder(), name_.c_str(), flags, mode_); })};
        if (!file.is_open()) return false;
        bool const locked = lock(file);
        struct stat status = {};
        if (::fstat(file.number(), &status) != 0) {
            int const cause = errno;
            ::unlinkat(folder(), name_.c_str(), 0);
            errno = cause;
            return false;
        }
        if (!locked || status.st_nlink == 0) { // another save took it for abandoned before it was locked
            errno = EEXIST;
            return false;
        }
        file_ = std::move(file);
        return true;
    }

    /// Puts one random name after another into name_ until make succeeds; false, and no name, when it fails for another
    /// reason than that the name is taken.
    template <class Make> bool find_name(Make make)
    {
        constexpr int most_names = 1000; // no folder has so many of these: its system calls every name taken
        for (int names = 0; names < most_names; ++names) {
            name_ = temporary_name(random_number());
            if (make()) return true;
            if (errno != EEXIST) break;
        }
        int const cause = errno;
        name_.clear(); // it names no file of ours
        errno = cause;
        return false;
    }

    bool link_to(fs::path const& name) const
    {
        std::string const self = "/proc/self/fd/" + std::to_string(file_.number());
        return ::linkat(AT_FDCWD, self.c_str(), folder(), name.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }

    Place const& place_;
    mode_t mode_;
    fs::path name_; // empty: none
    Descriptor file_;
};

/// Makes a new name last through a power cut. The army is in place already, so that a folder which cannot be flushed
/// is no failure.
void flush_folder(Place const& place)
{
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    Descriptor const folder{uninterrupted([&] { return ::openat(place.folder.number(), ".", flags); })};
    if (folder.is_open()) uninterrupted([&] { return ::fsync(folder.number()); });
}

/// False when the path led to another file in the end than in the beginning; nothing has happened then.
bool replaced(fs::path const& path, std::string_view bytes)
{
    Place const place = place_of(path);
    if (is_temporary_name(place.name.native())) fail(EINVAL);
    // Opened for writing, though never written: the system judges whether this user may, by the path as it was given.
    auto const old = open_ordinary(path, O_WRONLY);
    if (!holds(place, old)) return false;
    remove_leftovers(place.folder);
    for (bool const nameless : {true, false}) {
        NewFile file{place, old.is_open() ? mode_t{0600} : mode_t{0666}};
        if (nameless && !file.open_nameless()) continue;
        if (!nameless) file.open_named();
        if (old.is_open()) file.take_over_rights(old);
        file.write(bytes);
        file.flush();
        if (!holds(place, old)) return false;
        if (file.put_in_place()) break;
    }
    flush_folder(place);
    return true;
}

} // namespace

void replace_durably(fs::path const& path, std::string_view bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // a limit on the size of files must be reported, not end the program
    // Another program may save the same file; one that does nothing else is not waited for.
    constexpr int most_attempts = 100;
    for (int attempt = 0; attempt < most_attempts; ++attempt) {
        if (replaced(path, bytes)) return;
    }
    fail(EBUSY);
}

} // namespace warhost
