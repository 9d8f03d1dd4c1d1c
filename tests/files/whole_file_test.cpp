#include "files/whole_file.h"

#include "caught.h"
#include "temporary_folder.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace warhost {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

/// Takes the superuser's privileges away for a while: permissions mean nothing to him.
class OrdinaryUser {
public:
    OrdinaryUser() : privileged_(::geteuid() == 0 && ::setreuid(nobody, 0) == 0 && ::seteuid(nobody) == 0) {}
    OrdinaryUser(OrdinaryUser const&) = delete;
    OrdinaryUser& operator=(OrdinaryUser const&) = delete;
    ~OrdinaryUser()
    {
        if (privileged_ && (::seteuid(0) != 0 || ::setreuid(0, 0) != 0)) std::abort();
    }
    static bool is_one() { return ::geteuid() != 0; }

private:
    static constexpr uid_t nobody = 65534;
    bool privileged_;
};

/// The failure's text; empty when there is none or its number is not that of `fault`.
template <class Run> std::string outcome(Fault fault, Run&& run)
{
    Failure const failure = caught(run);
    return failure.number == number_of(fault) ? failure.text : "";
}

TEST(WholeFile, replaces_a_file_and_keeps_links_and_permissions)
{
    TemporaryFolder folder;
    replace_file(folder.path("new"), "one");
    EXPECT_EQ(read_file(folder.path("new")), "one");
    folder.write("old", std::string(200000, 'x'));
    EXPECT_EQ(read_file(folder.path("old")).size(), 200000U);
    fs::permissions(folder.path("old"), fs::perms{0640});
    fs::create_directory(folder.path("links"));
    fs::create_symlink("../old", folder.path("links/to_old"));
    fs::create_symlink("to_old", folder.path("links/twice"));
    replace_file(folder.path("links/twice"), "two");
    EXPECT_TRUE(fs::is_symlink(folder.path("links/twice")) && fs::is_symlink(folder.path("links/to_old")));
    EXPECT_EQ(folder.read("old"), "two");
    EXPECT_EQ(fs::status(folder.path("old")).permissions(), fs::perms{0640});
    fs::create_symlink(folder.path("born"), folder.path("links/dangling"));
    replace_file(folder.path("links/dangling"), "three");
    EXPECT_EQ(folder.read("born"), "three");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"born", "links", "new", "old"}));
}

TEST(WholeFile, says_why_it_cannot_be_used_and_leaves_everything_as_it_was)
{
    TemporaryFolder folder;
    folder.write("file", "whole");
    fs::create_directory(folder.path("folder"));
    fs::create_symlink("loop", folder.path("loop"));
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0666), 0);
    // clang-format off
    struct { std::string name; Fault fault; std::string text; } const cases[] = {
        {"folder", Fault::is_a_folder, "This is a folder, not a file: "},
        {"file/x", Fault::folder_not_found, "The folder was not found: "},
        {"pipe", Fault::not_a_file, "This is not an ordinary file: "},
        {"loop", Fault::link_loop, "The symbolic links form a loop: "},
        {std::string(300, 'n'), Fault::bad_name, "The file name cannot be used: "},
    };
    // clang-format on
    auto const names = folder.names();
    for (auto const& [name, fault, text] : cases) {
        auto const path = folder.path(name);
        EXPECT_EQ(outcome(fault, [&] { read_file(path); }), text + path);
        EXPECT_EQ(outcome(fault, [&] { replace_file(path, "x"); }), text + path);
        EXPECT_EQ(folder.names(), names);
    }
    auto const missing = folder.path("missing");
    EXPECT_EQ(outcome(Fault::file_not_found, [&] { read_file(missing); }), "The file was not found: " + missing);
    EXPECT_EQ(outcome(Fault::folder_not_found, [&] { replace_file(missing + "/x", "x"); }),
              "The folder was not found: " + missing + "/x");
    EXPECT_EQ(folder.read("file"), "whole");
}

TEST(WholeFile, that_cannot_be_written_to_its_end_stays_the_old_one)
{
    TemporaryFolder folder;
    folder.write("file", "whole");
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit const small{1000, before.rlim_max};
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    auto const text = outcome(Fault::too_large, [&] { replace_file(folder.path("file"), std::string(1001, 'x')); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(text, "The file is too large: " + folder.path("file"));
    EXPECT_EQ(folder.read("file"), "whole");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"file"}));
}

TEST(WholeFile, respects_permissions)
{
    TemporaryFolder folder;
    auto const file = folder.path("file"), secret = folder.path("secret"), born = folder.path("new");
    for (char const* name : {"file", "secret"}) folder.write(name, "whole");
    fs::permissions(file, fs::perms{0444});
    fs::permissions(secret, fs::perms::none);
    fs::permissions(folder.path(), fs::perms{0777});
    {
        OrdinaryUser user;
        if (!user.is_one()) GTEST_SKIP() << "the superuser may do everything";
        EXPECT_EQ(read_file(file), "whole");
        EXPECT_EQ(outcome(Fault::permission_denied, [&] { replace_file(file, "x"); }), "Permission denied: " + file);
        EXPECT_EQ(outcome(Fault::permission_denied, [&] { read_file(secret); }), "Permission denied: " + secret);
    }
    fs::permissions(folder.path(), fs::perms{0555});
    {
        OrdinaryUser user;
        EXPECT_EQ(outcome(Fault::permission_denied, [&] { replace_file(born, "x"); }), "Permission denied: " + born);
    }
    fs::permissions(folder.path(), fs::perms{0755});
    EXPECT_EQ(folder.names(), (std::set<std::string>{"file", "secret"}));
    EXPECT_EQ(folder.read("file"), "whole");
}

TEST(FileExists, for_every_kind_of_file_but_no_folder)
{
    TemporaryFolder folder;
    folder.write("file", "");
    folder.write(".hidden", "");
    fs::create_symlink("file", folder.path("link"));
    fs::create_symlink("nowhere", folder.path("dangling"));
    for (char const* name : {"file", ".hidden", "link"}) EXPECT_TRUE(FileExists(folder.path(name))) << name;
    for (auto const& name : {"dangling"s, "file/x"s, "none/x"s, ""s, std::string(300, 'n')}) {
        EXPECT_FALSE(FileExists(folder.path(name))) << name;
    }
    EXPECT_FALSE(FileExists(""));
}

} // namespace
} // namespace warhost
