#include "files/replace_file.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace warhost {

namespace {

void require(bool succeeded)
{
    if (!succeeded) throw std::system_error{errno, std::generic_category()};
}

/// A lock that lasts until the descriptor is closed, by the system at the latest. Denied only when another save holds
/// it: where there are no locks, everyone has his.
bool lock(int descriptor) { return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

/// Removes the temporary file of a save of this user's that was killed: one that nobody has locked. False when what
/// has the name must stay.
bool remove_abandoned(std::filesystem::path const& name)
{
    int const descriptor = ::open(name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return errno == ENOENT;
    struct stat opened = {};
    struct stat named = {};
    // A name that still leads to the locked file is nobody's: its owner would have kept the lock until renaming it.
    bool const removed = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::fstat(descriptor, &opened) == 0 &&
                         S_ISREG(opened.st_mode) && opened.st_uid == ::geteuid() &&
                         ::lstat(name.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
                         opened.st_ino == named.st_ino && ::unlink(name.c_str()) == 0;
    ::close(descriptor);
    return removed;
}

/// A new file in a folder. Nameless, nothing of it stays behind whatever happens before it is put in place; but not
/// every file system knows such files, and not every system lets them have a name afterwards.
class NewFile {
public:
    explicit NewFile(std::filesystem::path folder) : folder_(std::move(folder)) {}
    NewFile(NewFile const&) = delete;
    NewFile& operator=(NewFile const&) = delete;
    ~NewFile()
    {
        if (!name_.empty()) ::unlink(name_.c_str());
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    /// False where nameless files are unknown.
    bool open_nameless()
    {
        descriptor_ = ::open(folder_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
        bool const unknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL || errno == ENOENT;
        require_opened(descriptor_ >= 0 || unknown);
        return descriptor_ >= 0 && lock(descriptor_);
    }

    void open_named()
    {
        auto const create = [&] {
            descriptor_ = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (descriptor_ < 0) return false;
            bool const locked = lock(descriptor_);
            struct stat own = {};
            bool const told = ::fstat(descriptor_, &own) == 0;
            if (told && locked && own.st_nlink > 0) return true;
            int const cause = told ? EEXIST : errno; // the name was taken for abandoned before it was locked
            if (!told) ::unlink(name_.c_str());
            ::close(descriptor_);
            descriptor_ = -1;
            errno = cause;
            return false;
        };
        require_opened(find_name(create));
    }

    /// The rights to the file to be replaced, as far as the system lets them be given; never more.
    void take_over_rights(std::filesystem::path const& target, struct stat const& old) const
    {
        constexpr char const* access_list = "system.posix_acl_access"; // what further users and groups may do
        ::fremovexattr(descriptor_, access_list);                      // the folder may have given it one of its own
        struct stat own = {};
        require(::fstat(descriptor_, &own) == 0);
        constexpr auto unchanged = static_cast<uid_t>(-1);
        std::string list(std::size_t{64} * 1024, '\0');
        ssize_t const size = ::getxattr(target.c_str(), access_list, list.data(), list.size());
        bool const same_group = own.st_gid == old.st_gid || ::fchown(descriptor_, unchanged, old.st_gid) == 0;
        if (same_group && size > 0 && ::fsetxattr(descriptor_, access_list, list.data(), size, 0) == 0) return;
        mode_t mode = old.st_mode & 07777U;
        // Meant for another group, or not for the group alone.
        if (!same_group || size > 0) mode &= ~static_cast<mode_t>(S_IRWXG);
        if ((own.st_mode & 07777U) == mode) return;
        require(::fchmod(descriptor_, mode) == 0 || errno == EPERM || errno == ENOTSUP);
    }

    void write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            ssize_t const written = ::write(descriptor_, bytes.data(), bytes.size());
            require(written >= 0 || errno == EINTR);
            if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void flush() const { require(::fsync(descriptor_) == 0); }

    /// False where a nameless file cannot have a name; nothing has happened then.
    bool put_in_place(std::filesystem::path const& target)
    {
        if (name_.empty()) {
            if (link_to(target)) return true;
            if (errno != EEXIST || !find_name([&] { return link_to(name_); })) return false;
        }
        require(::rename(name_.c_str(), target.c_str()) == 0);
        name_.clear();
        return true;
    }

private:
    /// It is the folder that a new file was not allowed in.
    void require_opened(bool succeeded) const
    {
        if (!succeeded && (errno == EACCES || errno == EROFS)) {
            throw std::filesystem::filesystem_error{{}, folder_, {errno, std::generic_category()}};
        }
        require(succeeded);
    }

    /// Puts one unused name after another into name_ until make succeeds; false, and no name, when it fails otherwise.
    template <class Make> bool find_name(Make make)
    {
        constexpr int most_names = 100;
        int cause = EEXIST;
        for (int number = 0; number < most_names && cause == EEXIST; ++number) {
            name_ = temporary_name(folder_, number);
            if (make()) return true;
            cause = errno;
            if (cause != EEXIST || !remove_abandoned(name_)) continue;
            if (make()) return true;
            cause = errno;
        }
        name_.clear(); // it names no file of ours
        errno = cause;
        return false;
    }

    bool link_to(std::filesystem::path const& path) const
    {
        std::string const self = "/proc/self/fd/" + std::to_string(descriptor_);
        return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }

    std::filesystem::path folder_;
    std::filesystem::path name_; // empty: none
    int descriptor_ = -1;
};

/// Makes a new name last through a power cut. The army is in place already, so that a folder which cannot be flushed
/// is no failure.
void flush_folder(std::filesystem::path const& folder)
{
    int const descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

void replace_durably(std::filesystem::path const& target, std::string_view bytes)
{
    auto const folder = target.has_parent_path() ? target.parent_path() : std::filesystem::path{"."};
    // A file marked read-only stays, although a rename could replace it.
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) require(errno == ENOENT);
    std::signal(SIGXFSZ, SIG_IGN); // a limit on the size of files is to be told, not to end the program
    remove_abandoned(temporary_name(folder, 0));
    struct stat old = {};
    bool const replaces = ::stat(target.c_str(), &old) == 0;
    require(replaces || errno == ENOENT);
    for (bool const nameless : {true, false}) {
        NewFile file{folder};
        if (nameless && !file.open_nameless()) continue;
        if (!nameless) file.open_named();
        if (replaces) file.take_over_rights(target, old);
        file.write(bytes);
        file.flush();
        if (file.put_in_place(target)) break;
    }
    flush_folder(folder);
}

} // namespace warhost
