// Saving while its system calls fail, or while the process is killed at one of them. The linker puts the functions
// below in place of the system's.
#include "files/whole_file.h"

#include "caught.h"
#include "temporary_folder.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

enum class Blow { fails, cut_short, interrupted, killed_before, killed_after, device_gone };

struct Fire {
    Blow blow = Blow::cut_short;
    int at = 0; // the call that is struck, counted from 1; all the later ones, too, when the device is gone
    bool knows_nameless_files = true;
    int error = EIO;
    char const* text = "The disk or network reported an error: ";
    char const* cause = "";                             // at the end of the message
    int read_error = 0, list_error = 0, mode_error = 0; // of every such call; 0: none
    std::string list = {};                              // the old file's access list; empty: what the system says
    int given_error = 0;                                // of giving the new file a list
    std::string given = {};
    int calls = 0;
    mode_t created = 0;                        // with these rights
    std::function<void()> before_open = [] {}; // what another program does then; once
    std::function<void()> before_lock = [] {};
    bool failed = false, file_flushed = false, folder_flushed = true, named_unflushed = false;
};

Fire* fire = nullptr;

/// Whether the call that begins now fails.
bool struck(bool interruptible = false)
{
    if (fire == nullptr || ++fire->calls < fire->at) return false;
    if (fire->calls > fire->at && fire->blow != Blow::device_gone) return false;
    if (fire->blow == Blow::killed_before) ::raise(SIGKILL);
    bool const fails = fire->blow == Blow::fails || fire->blow == Blow::device_gone;
    errno = fails ? fire->error : EINTR;
    fire->failed |= fails;
    return fails || (fire->blow == Blow::interrupted && interruptible);
}

template <class Result> Result ended(Result result)
{
    if (fire != nullptr && fire->calls == fire->at && fire->blow == Blow::killed_after) ::raise(SIGKILL);
    return result;
}

bool fails_always(int error)
{
    errno = error;
    return error != 0;
}

/// Fails as on a network file system, where an exclusive lock needs a file that may be written.
bool lock_struck(int file)
{
    if (fire != nullptr) std::exchange(fire->before_lock, [] {})();
    if ((::fcntl(file, F_GETFL) & O_ACCMODE) == O_RDONLY && fails_always(EBADF)) return true;
    return struck();
}

std::size_t cut(std::size_t count)
{
    return fire != nullptr && fire->calls == fire->at && fire->blow == Blow::cut_short ? count / 2 : count;
}

/// A file that gets its name before it was flushed can be empty after a power cut.
int named(int result)
{
    if (fire != nullptr && result == 0) {
        fire->named_unflushed |= !fire->file_flushed;
        fire->folder_flushed = false;
    }
    return ended(result);
}

} // namespace

// clang-format off
#define UNDER_FIRE(result, name, parameters, arguments, fails, ended) \
    result __real_##name parameters; \
    result __wrap_##name parameters { return fails ? -1 : ended(__real_##name arguments); }

extern "C" {
UNDER_FIRE(int, close, (int file), (file), struck(), ended)
UNDER_FIRE(int, fchmod, (int file, mode_t mode), (file, mode),
           (fire != nullptr && fails_always(fire->mode_error)) || struck(true), ended)
UNDER_FIRE(int, fchown, (int file, uid_t user, gid_t group), (file, user, group), struck(true), ended)
UNDER_FIRE(int, flock, (int file, int operation), (file, operation), lock_struck(file), ended)
UNDER_FIRE(int, fstat, (int file, struct stat* status), (file, status), struck(), ended)
UNDER_FIRE(int, fstatat, (int in, char const* path, struct stat* to, int flags), (in, path, to, flags), struck(), ended)
UNDER_FIRE(int, linkat, (int from, char const* file, int to, char const* path, int flags),
           (from, file, to, path, flags), struck(), named)
UNDER_FIRE(ssize_t, read, (int file, void* bytes, size_t count), (file, bytes, cut(count)),
           (fire != nullptr && fails_always(fire->read_error)) || struck(true), ended)
UNDER_FIRE(int, renameat, (int from, char const* file, int to, char const* path), (from, file, to, path), struck(),
           named)
UNDER_FIRE(int, stat, (char const* path, struct stat* status), (path, status), struck(), ended)
UNDER_FIRE(int, unlinkat, (int folder, char const* path, int flags), (folder, path, flags), struck(), ended)

ssize_t __real_fgetxattr(int file, char const* name, void* value, size_t size);
ssize_t __wrap_fgetxattr(int file, char const* name, void* value, size_t size)
{
    if ((fire != nullptr && fails_always(fire->list_error)) || struck()) return -1;
    if (fire == nullptr || fire->list.empty()) return ended(__real_fgetxattr(file, name, value, size));
    if (fire->list.size() > size && fails_always(ERANGE)) return -1;
    return static_cast<ssize_t>(fire->list.copy(static_cast<char*>(value), size));
}

int __real_fsetxattr(int file, char const* name, void const* value, size_t size, int flags);
int __wrap_fsetxattr(int file, char const* name, void const* value, size_t size, int flags)
{
    if (fire == nullptr || fire->list.empty()) return __real_fsetxattr(file, name, value, size, flags);
    if (fails_always(fire->given_error)) return -1;
    fire->given = {static_cast<char const*>(value), size};
    return 0;
}

int __wrap_fsync(int file) // hundreds of saves need no disk
{
    if (struck(true)) return -1;
    struct stat status = {};
    if (fire != nullptr && __real_fstat(file, &status) == 0)
        (S_ISREG(status.st_mode) ? fire->file_flushed : fire->folder_flushed) = true;
    return ended(0);
}

int __real_open(char const* path, int flags, mode_t mode);
int __wrap_open(char const* path, int flags, mode_t mode)
{
    if (fire != nullptr) std::exchange(fire->before_open, [] {})();
    return struck(true) ? -1 : ended(__real_open(path, flags, mode));
}

int __real_openat(int folder, char const* path, int flags, mode_t mode);
int __wrap_openat(int folder, char const* path, int flags, mode_t mode)
{
    bool const unknown = fire != nullptr && !fire->knows_nameless_files && (flags & O_TMPFILE) == O_TMPFILE;
    if (unknown && fails_always(EOPNOTSUPP)) return -1;
    if (fire != nullptr && (flags & (O_CREAT | O_TMPFILE) & ~O_DIRECTORY) != 0) fire->created |= mode;
    return struck(true) ? -1 : ended(__real_openat(folder, path, flags, mode));
}

ssize_t __real_write(int file, void const* bytes, size_t count);
ssize_t __wrap_write(int file, void const* bytes, size_t count)
{
    if (struck(true)) return -1;
    if (fire != nullptr) fire->file_flushed = false;
    return ended(__real_write(file, bytes, cut(count)));
}
}
// clang-format on

namespace warhost {
namespace {

enum Ending { done, refused, wrong, not_struck, killed };

enum class Command { save, load };

/// Saves the bytes, or loads a file that holds them, in a process of its own.
Ending under_fire(Command command, std::string const& path, std::string const& bytes, Fire blows)
{
    pid_t const child = ::fork();
    if (child == 0) {
        fire = &blows;
        std::string loaded = bytes;
        Failure const failure =
            caught([&] { command == Command::save ? replace_file(path, bytes) : void(loaded = read_file(path)); });
        bool const flushed = !blows.named_unflushed && (blows.folder_flushed || blows.failed);
        std::string const message = blows.text + path + blows.cause;
        bool const right = failure.number == 0 ? loaded == bytes && flushed : failure.text == message;
        ::_exit(!right ? wrong : failure.number != 0 ? refused : blows.calls < blows.at ? not_struck : done);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? static_cast<Ending>(WEXITSTATUS(status)) : killed;
}

TEST(SaveUnderFire, leaves_the_old_army_or_the_new_one_and_nothing_else)
{
    std::string const old_army(2000, 'o'), new_army(200000, 'n');
    using enum Blow;
    for (Fire blow : {Fire{fails},
                      {fails, 0, true, ENOSPC, "The disk is full: "},
                      {cut_short},
                      {interrupted},
                      {killed_before},
                      {killed_after},
                      {device_gone},
                      {device_gone, 0, true, EEXIST, "The file could not be used: ", " (File exists)"}}) {
        for (auto const& [replaces, nameless] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
            Ending ending = done;
            blow.knows_nameless_files = nameless;
            for (blow.at = 1; ending != not_struck; ++blow.at) {
                SCOPED_TRACE(testing::Message() << "blow " << static_cast<int>(blow.blow) << " at call " << blow.at
                                                << (replaces ? ", replacing" : "") << (nameless ? ", nameless" : ""));
                TemporaryFolder const folder;
                if (replaces) folder.write("x.Army", old_army);
                ending = under_fire(Command::save, folder.path("x.Army"), new_army, blow);
                auto const found = folder.read("x.Army");
                bool const is_new = found == new_army, is_old = found == (replaces ? old_army : "");
                EXPECT_NE(ending, wrong);
                EXPECT_FALSE(ending == refused && blow.blow == interrupted);
                EXPECT_TRUE(ending == refused ? is_old : is_new || (is_old && ending == killed));
                // What a save left that was killed, or whose device was gone, is gone after the next one.
                bool const saves_again = ending == killed || blow.blow == device_gone;
                if (saves_again) replace_file(folder.path("x.Army"), old_army);
                std::set<std::string> left{"x.Army"};
                if (!saves_again && !replaces && ending == refused) left.clear();
                EXPECT_EQ(folder.names(), left);
                ASSERT_LT(blow.at, 100);
            }
            EXPECT_GT(blow.at, 9);
        }
    }
}

TEST(SaveUnderFire, two_programs_that_save_the_same_file_do_not_disturb_each_other)
{
    TemporaryFolder const folder;
    std::string const one(5000, '1'), two(70000, '2');
    bool const first = ::fork() == 0;
    int refusals = 0;
    for (int round = 0; round < 300; ++round) {
        refusals += under_fire(Command::save, folder.path("x.Army"), first ? one : two, {}) != done;
        std::string const file = folder.read("x.Army");
        refusals += file != one && file != two;
    }
    if (first) ::_exit(refusals);
    int status = 0;
    ::wait(&status);
    EXPECT_EQ(std::pair(status, refusals), std::pair(0, 0));
    EXPECT_EQ(folder.names(), std::set<std::string>{"x.Army"});
}

TEST(SaveUnderFire, replaces_the_file_that_was_checked_when_a_link_changes_meanwhile)
{
    TemporaryFolder const folder;
    auto const link = folder.path("link");
    for (char const* name : {"one", "two"}) folder.write(name, "old");
    std::filesystem::create_symlink("one", link);
    auto const swap = [&] { ::unlink(link.c_str()) == 0 && ::symlink("two", link.c_str()) == 0 ? 0 : throw link; };
    EXPECT_EQ(under_fire(Command::save, link, "new", {.before_open = swap}), done);
    EXPECT_EQ(folder.read("one") + " " + folder.read("two"), "old new");
}

TEST(SaveUnderFire, makes_another_file_when_its_own_is_taken_for_abandoned_before_it_is_locked)
{
    TemporaryFolder const folder;
    auto const clear = [&] {
        for (auto const& name : folder.names()) std::filesystem::remove(folder.path(name));
    };
    auto const file = folder.path("x.Army");
    EXPECT_EQ(under_fire(Command::save, file, "new", {.knows_nameless_files = false, .before_lock = clear}), done);
    EXPECT_EQ(folder.read("x.Army"), "new");
}

TEST(SaveUnderFire, keeps_the_access_list_or_removes_permissions)
{
    TemporaryFolder const folder;
    auto const file = folder.path("x.Army");
    auto const rights_after = [&](Fire save) {
        folder.write("x.Army", "old");
        std::filesystem::permissions(file, std::filesystem::perms{0644});
        fire = &save;
        EXPECT_EQ(caught(replace_file, file, "new").text, "");
        fire = nullptr;
        EXPECT_EQ(save.created, 0600U); // nobody may open it before it has its own rights
        EXPECT_EQ(save.given, save.given_error == 0 ? save.list : "");
        return static_cast<unsigned>(std::filesystem::status(file).permissions());
    };
    for (int const error : {ENODATA, ENOTSUP, E2BIG, ERANGE, EACCES, EIO})
        EXPECT_EQ(rights_after({.list_error = error}), error == ENODATA || error == ENOTSUP ? 0644U : 0600U) << error;
    std::string const longest(65536, 'l');
    EXPECT_EQ(rights_after({.list = longest}), 0644U);
    EXPECT_EQ(rights_after({.list = longest, .given_error = EIO}), 0600U);
}

TEST(SaveUnderFire, does_without_permissions_only_where_the_system_has_none)
{
    TemporaryFolder const folder;
    folder.write("x.Army", "old");
    for (int const error : {EPERM, ENOTSUP, ENOSYS, EIO})
        EXPECT_EQ(under_fire(Command::save, folder.path("x.Army"), "new", {.mode_error = error}),
                  error == EIO ? refused : done)
            << error;
}

TEST(LoadUnderFire, is_complete_or_rejected)
{
    TemporaryFolder const folder;
    std::string const army(200000, 'a');
    folder.write("x.Army", army);
    for (Fire blow : {Fire{Blow::fails}, {Blow::cut_short}, {Blow::interrupted}, {Blow::device_gone}}) {
        Ending ending = done;
        for (blow.at = 1; ending != not_struck; ++blow.at) {
            ending = under_fire(Command::load, folder.path("x.Army"), army, blow);
            EXPECT_FALSE(ending == wrong || (ending == refused && blow.blow == Blow::interrupted))
                << "blow " << static_cast<int>(blow.blow) << " at call " << blow.at << ": " << ending;
            ASSERT_LT(blow.at, 100);
        }
        EXPECT_GT(blow.at, 7);
    }
}

TEST(LoadUnderFire, never_waits_for_a_special_file)
{
    TemporaryFolder const folder;
    folder.write("x.Army", "army");
    Fire const waits{.text = "This is not an ordinary file: ", .read_error = EAGAIN};
    EXPECT_EQ(under_fire(Command::load, folder.path("x.Army"), "army", waits), refused);
}

TEST(LoadUnderFire, waits_until_another_program_gives_up_its_lease)
{
    TemporaryFolder const folder;
    folder.write("x.Army", "army");
    Fire const leased{.blow = Blow::fails, .at = 2, .error = EAGAIN}; // the file is looked at first, then opened
    EXPECT_EQ(under_fire(Command::load, folder.path("x.Army"), "army", leased), done);
}

TEST(UnderFire, the_cause_is_reported)
{
    TemporaryFolder const folder;
    std::pair<char const*, std::vector<int>> const causes[] = {
        {"The disk is full: ", {ENOSPC, EDQUOT}},
        {"The connection to the network folder was lost: ", {ESTALE, ENOLINK, ENOTCONN, EHOSTDOWN}},
        {"The disk or network folder does not answer: ", {ETIMEDOUT, ENOMEDIUM}},
        {"The disk or network reported an error: ", {EREMOTEIO}}};
    for (auto const& [text, errors] : causes)
        for (int const error : errors)
            for (auto const command : {Command::save, Command::load})
                EXPECT_EQ(under_fire(command, folder.path("x"), "x", {Blow::fails, 1, true, error, text}), refused)
                    << error;
}

} // namespace
} // namespace warhost
