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

namespace {

enum class Blow { fails, cut_short, interrupted, killed_before, killed_after, device_gone };

struct Fire {
    Blow blow;
    int at; // the call that is struck, counted from 1; all the later ones, too, when the device is gone
    bool knows_nameless_files = true;
    int error = EIO;
    char const* text = "The disk or network reported an error: ";
    int read_error = 0, list_error = 0; // of every such call; 0: none
    int calls = 0;
    bool failed = false;
    mode_t created = 0;                        // with these rights
    std::function<void()> before_open = [] {}; // what another program does then; once
    bool file_flushed = false, folder_flushed = true, named_unflushed = false;
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
#define UNDER_FIRE(name, parameters, arguments, interruptible, ended) \
    int __real_##name parameters; \
    int __wrap_##name parameters { return struck(interruptible) ? -1 : ended(__real_##name arguments); }

extern "C" {
UNDER_FIRE(close, (int file), (file), false, ended)
UNDER_FIRE(fchmod, (int file, mode_t mode), (file, mode), true, ended)
UNDER_FIRE(fchown, (int file, uid_t user, gid_t group), (file, user, group), true, ended)
UNDER_FIRE(fstat, (int file, struct stat* status), (file, status), false, ended)
UNDER_FIRE(fstatat, (int in, char const* path, struct stat* status, int flags), (in, path, status, flags), false, ended)
UNDER_FIRE(linkat, (int from, char const* file, int to, char const* path, int flags), (from, file, to, path, flags),
           false, named)
UNDER_FIRE(renameat, (int from, char const* file, int to, char const* path), (from, file, to, path), false, named)
UNDER_FIRE(stat, (char const* path, struct stat* status), (path, status), false, ended)
UNDER_FIRE(unlinkat, (int folder, char const* path, int flags), (folder, path, flags), false, ended)

int __real_flock(int file, int operation);
int __wrap_flock(int file, int operation)
{
    // As on a network file system, where an exclusive lock needs a file that may be written.
    if ((::fcntl(file, F_GETFL) & O_ACCMODE) == O_RDONLY) return fails_always(EBADF) ? -1 : 0;
    return struck() ? -1 : ended(__real_flock(file, operation));
}

ssize_t __real_fgetxattr(int file, char const* name, void* value, size_t size);
ssize_t __wrap_fgetxattr(int file, char const* name, void* value, size_t size)
{
    if (fire != nullptr && fails_always(fire->list_error)) return -1;
    return struck() ? -1 : ended(__real_fgetxattr(file, name, value, size));
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
    if (unknown) return fails_always(EOPNOTSUPP) ? -1 : 0;
    if (fire != nullptr && (flags & (O_CREAT | O_TMPFILE) & ~O_DIRECTORY) != 0) fire->created |= mode;
    return struck(true) ? -1 : ended(__real_openat(folder, path, flags, mode));
}

ssize_t __real_read(int file, void* bytes, size_t count);
ssize_t __wrap_read(int file, void* bytes, size_t count)
{
    if (fire != nullptr && fails_always(fire->read_error)) return -1;
    return struck(true) ? -1 : ended(__real_read(file, bytes, cut(count)));
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
        bool const right = failure.number == 0 ? loaded == bytes && flushed : failure.text == blows.text + path;
        ::_exit(!right ? wrong : failure.number != 0 ? refused : blows.calls < blows.at ? not_struck : done);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? static_cast<Ending>(WEXITSTATUS(status)) : killed;
}

TEST(SaveUnderFire, leaves_the_old_army_or_the_new_one_and_nothing_else)
{
    std::string const old_army(2000, 'o'), new_army(200000, 'n');
    using Names = std::set<std::string>;
    Fire const blows[] = {{Blow::fails, 0},         {Blow::fails, 0, true, ENOSPC, "The disk is full: "},
                          {Blow::cut_short, 0},     {Blow::interrupted, 0},
                          {Blow::killed_before, 0}, {Blow::killed_after, 0},
                          {Blow::device_gone, 0}};
    for (Fire blow : blows) {
        for (auto const& [replaces, nameless] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
            Ending ending = done;
            blow.knows_nameless_files = nameless;
            for (blow.at = 1; ending != not_struck; ++blow.at) {
                SCOPED_TRACE(testing::Message() << "blow " << static_cast<int>(blow.blow) << " at call " << blow.at
                                                << (replaces ? ", replacing" : "") << (nameless ? ", nameless" : ""));
                TemporaryFolder const folder;
                if (replaces) folder.write("x.Army", old_army);
                ending = under_fire(Command::save, folder.path("x.Army"), new_army, blow);
                bool const is_new = folder.read("x.Army") == new_army;
                bool const is_old = folder.read("x.Army") == (replaces ? old_army : "");
                EXPECT_NE(ending, wrong);
                EXPECT_FALSE(ending == refused && blow.blow == Blow::interrupted);
                EXPECT_TRUE(ending == refused ? is_old : is_new || (is_old && ending == killed));
                // What a save left that was killed, or whose device was gone, is gone after the next one.
                bool const saves_again = ending == killed || blow.blow == Blow::device_gone;
                if (saves_again) replace_file(folder.path("x.Army"), old_army);
                bool const is_there = saves_again || replaces || ending != refused;
                EXPECT_EQ(folder.names(), is_there ? Names{"x.Army"} : Names{});
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
    Fire const no_blow{Blow::cut_short, 0};
    bool const first = ::fork() == 0;
    int refusals = 0;
    for (int round = 0; round < 300; ++round) {
        refusals += under_fire(Command::save, folder.path("x.Army"), first ? one : two, no_blow) != done;
        std::string const file = folder.read("x.Army");
        refusals += file != one && file != two;
    }
    if (first) ::_exit(refusals);
    int status = 0;
    ::wait(&status);
    EXPECT_EQ(std::pair(status, refusals), std::pair(0, 0));
    EXPECT_EQ(folder.names(), std::set<std::string>{"x.Army"});
}

TEST(SaveUnderFire, replaces_the_file_that_was_judged_when_a_link_changes_meanwhile)
{
    TemporaryFolder const folder;
    auto const link = folder.path("link");
    for (char const* name : {"one", "two"}) folder.write(name, "old");
    std::filesystem::create_symlink("one", link);
    Fire swap{Blow::cut_short, 0};
    swap.before_open = [&] { EXPECT_TRUE(::unlink(link.c_str()) == 0 && ::symlink("two", link.c_str()) == 0); };
    fire = &swap;
    EXPECT_EQ(caught(replace_file, link, "new").text, "");
    fire = nullptr;
    EXPECT_EQ(folder.read("one") + " " + folder.read("two"), "old new");
}

TEST(SaveUnderFire, takes_rights_away_when_the_access_list_cannot_be_read)
{
    TemporaryFolder const folder;
    auto const file = folder.path("x.Army");
    // clang-format off
    for (auto const& [error, mode] : {std::pair{ENODATA, 0644U}, {ENOTSUP, 0644U}, {E2BIG, 0600U}, {ERANGE, 0600U},
                                      {EACCES, 0600U}, {EIO, 0600U}}) {
        // clang-format on
        folder.write("x.Army", "old");
        std::filesystem::permissions(file, std::filesystem::perms{0644});
        Fire no_list{.blow = Blow::cut_short, .at = 0, .list_error = error};
        fire = &no_list;
        EXPECT_EQ(caught(replace_file, file, "new").text, "");
        fire = nullptr;
        EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{mode}) << error;
        EXPECT_EQ(no_list.created, 0600U); // nobody may open it before it has its own rights
    }
}

TEST(LoadUnderFire, is_whole_or_refused)
{
    TemporaryFolder const folder;
    std::string const army(200000, 'a');
    folder.write("x.Army", army);
    for (Fire blow : {Fire{Blow::fails, 0}, {Blow::cut_short, 0}, {Blow::interrupted, 0}, {Blow::device_gone, 0}}) {
        Ending ending = done;
        for (blow.at = 1; ending != not_struck; ++blow.at) {
            ending = under_fire(Command::load, folder.path("x.Army"), army, blow);
            EXPECT_NE(ending, wrong) << "blow " << static_cast<int>(blow.blow) << " at call " << blow.at;
            EXPECT_FALSE(ending == refused && blow.blow == Blow::interrupted) << blow.at;
            ASSERT_LT(blow.at, 100);
        }
        EXPECT_GT(blow.at, 7);
    }
}

TEST(LoadUnderFire, never_waits_for_what_a_special_file_will_say)
{
    TemporaryFolder const folder;
    folder.write("x.Army", "army");
    Fire const waits{.blow = Blow::cut_short, .at = 0, .text = "This is not an ordinary file: ", .read_error = EAGAIN};
    EXPECT_EQ(under_fire(Command::load, folder.path("x.Army"), "army", waits), refused);
}

TEST(UnderFire, the_cause_is_named)
{
    TemporaryFolder const folder;
    auto const* const full = "The disk is full: ";
    auto const* const lost = "The connection to the network folder was lost: ";
    auto const* const silent = "The disk or network folder does not answer: ";
    // clang-format off
    for (auto const& [error, text] : {std::pair{ENOSPC, full}, {EDQUOT, full}, {ESTALE, lost}, {ENOLINK, lost},
                                      {ENOTCONN, lost}, {EHOSTDOWN, lost}, {ETIMEDOUT, silent}, {ENOMEDIUM, silent},
                                      {EREMOTEIO, "The disk or network reported an error: "}})
        // clang-format on
        for (auto const command : {Command::save, Command::load})
            EXPECT_EQ(under_fire(command, folder.path("x"), "x", {Blow::fails, 1, true, error, text}), refused) << text;
}

} // namespace
} // namespace warhost
