// Saving while its system calls fail, or while the process is killed at one of them. The linker puts the functions
// below in place of the system's.
#include "files/whole_file.h"

#include "caught.h"
#include "temporary_folder.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum class Blow { device_error, disk_full, cut_short, killed_before, killed_after, device_gone };

struct Fire {
    Blow blow;
    int at; // the call that is struck, counted from 1; all the later ones, too, when the device is gone
    bool knows_nameless_files;
    int calls = 0;
    bool unflushed = false;
};

Fire* fire = nullptr;

/// Whether the call that begins now fails.
bool struck()
{
    if (fire == nullptr || ++fire->calls < fire->at) return false;
    if (fire->calls > fire->at && fire->blow != Blow::device_gone) return false;
    if (fire->blow == Blow::killed_before) ::raise(SIGKILL);
    errno = fire->blow == Blow::disk_full ? ENOSPC : EIO;
    return fire->blow == Blow::device_error || fire->blow == Blow::disk_full || fire->blow == Blow::device_gone;
}

template <class Result> Result ended(Result result)
{
    if (fire != nullptr && fire->calls == fire->at && fire->blow == Blow::killed_after) ::raise(SIGKILL);
    return result;
}

} // namespace

// clang-format off
#define UNDER_FIRE(name, parameters, arguments) \
    int __real_##name parameters; \
    int __wrap_##name parameters { return struck() ? -1 : ended(__real_##name arguments); }

extern "C" {
UNDER_FIRE(close, (int file), (file))
UNDER_FIRE(faccessat, (int folder, char const* path, int mode, int flags), (folder, path, mode, flags))
UNDER_FIRE(fchmod, (int file, mode_t mode), (file, mode))
UNDER_FIRE(fchown, (int file, uid_t user, gid_t group), (file, user, group))
UNDER_FIRE(flock, (int file, int operation), (file, operation))
UNDER_FIRE(fstat, (int file, struct stat* status), (file, status))
UNDER_FIRE(linkat, (int from, char const* file, int to, char const* path, int flags), (from, file, to, path, flags))
UNDER_FIRE(lstat, (char const* path, struct stat* status), (path, status))
UNDER_FIRE(rename, (char const* from, char const* to), (from, to))
UNDER_FIRE(stat, (char const* path, struct stat* status), (path, status))
UNDER_FIRE(unlink, (char const* path), (path))

int __wrap_fsync(int file) // hundreds of saves need no disk
{
    if (!struck()) return ended(0);
    struct stat status = {};
    fire->unflushed |= __real_fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    return -1;
}

int __real_open(char const* path, int flags, mode_t mode);
int __wrap_open(char const* path, int flags, mode_t mode)
{
    bool const unknown = fire != nullptr && !fire->knows_nameless_files && (flags & O_TMPFILE) == O_TMPFILE;
    if (unknown) errno = EOPNOTSUPP;
    return unknown || struck() ? -1 : ended(__real_open(path, flags, mode));
}

ssize_t __real_write(int file, void const* bytes, size_t count);
ssize_t __wrap_write(int file, void const* bytes, size_t count)
{
    if (struck()) return -1;
    bool const cut = fire != nullptr && fire->calls == fire->at && fire->blow == Blow::cut_short;
    return ended(__real_write(file, bytes, cut ? count / 2 : count));
}
}
// clang-format on

namespace warhost {
namespace {

enum Ending { saved, refused, refused_with_wrong_words, not_struck, killed };

/// Saves in a process of its own.
Ending save_under_fire(std::string const& path, std::string const& bytes, Fire blows)
{
    pid_t const child = ::fork();
    if (child == 0) {
        fire = &blows;
        Failure const failure = caught(replace_file, path, bytes);
        std::string const full = "The disk is full: ", broken = "The disk or network reported an error: ";
        bool const told = failure.text == (blows.blow == Blow::disk_full ? full : broken) + path;
        Ending const refusal = told ? refused : refused_with_wrong_words;
        ::_exit(blows.calls < blows.at ? not_struck : failure.number == 0 && !blows.unflushed ? saved : refusal);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? static_cast<Ending>(WEXITSTATUS(status)) : killed;
}

TEST(SaveUnderFire, leaves_the_old_army_or_the_new_one_and_nothing_else)
{
    std::string const old_army(2000, 'o'), new_army(200000, 'n');
    using Names = std::set<std::string>;
    for (auto const blow : {Blow::device_error, Blow::disk_full, Blow::cut_short, Blow::killed_before,
                            Blow::killed_after, Blow::device_gone}) {
        for (auto const& [replaces, nameless] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
            Ending ending = saved;
            int at = 1;
            for (; ending != not_struck; ++at) {
                SCOPED_TRACE(testing::Message() << "blow " << static_cast<int>(blow) << " at call " << at
                                                << (replaces ? ", replacing" : "") << (nameless ? ", nameless" : ""));
                TemporaryFolder const folder;
                if (replaces) folder.write("x.Army", old_army);
                ending = save_under_fire(folder.path("x.Army"), new_army, {blow, at, nameless});
                bool const is_new = folder.read("x.Army") == new_army;
                bool const is_old = folder.read("x.Army") == (replaces ? old_army : "");
                EXPECT_NE(ending, refused_with_wrong_words);
                EXPECT_TRUE(ending == refused ? is_old : is_new || (is_old && ending == killed));
                // What a save left that was killed, or whose device was gone, is gone after the next one.
                bool const saves_again = ending == killed || blow == Blow::device_gone;
                if (saves_again) replace_file(folder.path("x.Army"), old_army);
                bool const is_there = saves_again || replaces || ending != refused;
                EXPECT_EQ(folder.names(), is_there ? Names{"x.Army"} : Names{});
            }
            EXPECT_GT(at, 9);
        }
    }
}

TEST(SaveUnderFire, two_programs_that_save_the_same_file_do_not_disturb_each_other)
{
    TemporaryFolder const folder;
    std::string const one(5000, '1'), two(70000, '2');
    Fire const no_blow{Blow::cut_short, 0, true};
    bool const first = ::fork() == 0;
    int refusals = 0;
    for (int round = 0; round < 300; ++round) {
        refusals += save_under_fire(folder.path("x.Army"), first ? one : two, no_blow) != saved;
        std::string const file = folder.read("x.Army");
        refusals += file != one && file != two;
    }
    if (first) ::_exit(refusals);
    int status = 0;
    ::wait(&status);
    EXPECT_EQ(std::pair(status, refusals), std::pair(0, 0));
    EXPECT_EQ(folder.names(), std::set<std::string>{"x.Army"});
}

} // namespace
} // namespace warhost
