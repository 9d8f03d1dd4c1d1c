#include "files/replace_file.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace warhost {

namespace {

void require(bool succeeded)
{
    if (!succeeded) throw std::system_error{errno, std::generic_category()};
}

/// A new file in a folder. It has no name until it is put in place, so that nothing of it stays behind whatever happens
/// before; where the system knows no such files it has a name of its own from the start.
class NewFile {
    static constexpr char const* open_files = "/proc/self/fd"; // a nameless file gets its name through it

public:
    explicit NewFile(std::filesystem::path folder) : folder_(std::move(folder))
    {
        if (::access(open_files, F_OK) == 0) {
            descriptor_ = ::open(folder_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
            bool const unknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL || errno == ENOENT;
            require(descriptor_ >= 0 || unknown);
        }
        if (descriptor_ >= 0) return;
        give_name([&] { return (descriptor_ = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)); });
    }
    NewFile(NewFile const&) = delete;
    NewFile& operator=(NewFile const&) = delete;
    ~NewFile()
    {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (!name_.empty()) ::unlink(name_.c_str());
    }

    void set_permissions(mode_t mode) const { require(::fchmod(descriptor_, mode) == 0); }

    void write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            ssize_t const written = ::write(descriptor_, bytes.data(), bytes.size());
            require(written >= 0 || errno == EINTR);
            if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void flush() const { require(::fsync(descriptor_) == 0); }

    void put_in_place(std::filesystem::path const& target)
    {
        if (name_.empty()) {
            if (link_to(target) == 0) return close();
            require(errno == EEXIST);
            give_name([&] { return link_to(name_); });
        }
        close();
        require(::rename(name_.c_str(), target.c_str()) == 0);
        name_.clear();
    }

private:
    /// Calls make with one unused name after another in name_ until it succeeds.
    template <class Make> void give_name(Make make)
    {
        for (int attempt = 0;; ++attempt) {
            name_ = folder_ / (".warhost-" + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".tmp");
            if (make() >= 0) return;
            int const cause = errno;
            if (cause == EEXIST) continue;
            name_.clear(); // it names no file of ours
            errno = cause;
            require(false);
        }
    }

    int link_to(std::filesystem::path const& path) const
    {
        std::string const self = open_files + ("/" + std::to_string(descriptor_));
        return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
    }

    void close() { require(::close(std::exchange(descriptor_, -1)) == 0); }

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
    NewFile file{folder};
    struct stat existing = {};
    if (::stat(target.c_str(), &existing) == 0) file.set_permissions(existing.st_mode & 07777U);
    file.write(bytes);
    file.flush();
    file.put_in_place(target);
    flush_folder(folder);
}

} // namespace warhost
