#include "files/whole_file.h"

#include "caught.h"
#include "temporary_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace warhost {
namespace {

namespace fs = std::filesystem;

void replace(std::string const& path) { replace_file(path, std::string(1001, 'x')); }

struct WholeFile : testing::Test, TemporaryFolder {};

TEST_F(WholeFile, says_why_it_cannot_be_used_and_leaves_everything_as_it_was)
{
    write("file", "whole");
    fs::create_directory(path("folder"));
#ifndef _WIN32
    fs::create_symlink("loop", path("loop"));
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0666), 0);
#endif
    auto const before = names();
    // clang-format off
    struct { std::string name, text; } const cases[] = {
        {"folder", "This is a folder, not a file: "},
#ifdef _WIN32
        {"\xFF", "The file name cannot be used: "},
#else
        {"file/x", "The folder was not found: "},
        {"pipe", "This is not an ordinary file: "},
        {"loop", "The symbolic links form a loop: "},
        {std::string(300, 'n'), "The file name cannot be used: "},
#endif
        {std::string("file\0.Army", 10), "The file name cannot be used: "},
    };
    // clang-format on
    for (auto const& [name, text] : cases) {
        auto const file = path(name);
        EXPECT_EQ(caught(read_file, file).text, text + file);
        EXPECT_EQ(caught(replace, file).text, text + file);
        EXPECT_EQ(FileExists(file), name == "pipe");
        EXPECT_EQ(names(), before);
    }
    auto const missing = path("missing"), inside = missing + "/x";
    EXPECT_EQ(caught(read_file, missing).text, "The file was not found: " + missing);
    EXPECT_EQ(caught(replace, inside).text, "The folder was not found: " + inside);
    EXPECT_EQ(caught(replace, path(".warhost-7.tmp")).text, "The file name cannot be used: " + path(".warhost-7.tmp"));
    EXPECT_EQ(read("file"), "whole");
}

#ifdef _WIN32

TEST_F(WholeFile, is_replaced_under_any_name_and_keeps_its_permissions)
{
    auto const rights = [](std::string const& file) {
        std::string descriptor(1000, '\0');
        DWORD size = 0;
        ::GetFileSecurityA(file.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), 1000, &size);
        return descriptor.substr(0, size);
    };
    auto const file = path("file"), foreign = path("\u0416uk");
    replace(file);
    auto const usual = rights(file);
    SECURITY_DESCRIPTOR everyone{};
    ::InitializeSecurityDescriptor(&everyone, SECURITY_DESCRIPTOR_REVISION);
    ::SetSecurityDescriptorDacl(&everyone, TRUE, nullptr, FALSE);
    EXPECT_TRUE(::SetFileSecurityA(file.c_str(), DACL_SECURITY_INFORMATION, &everyone));
    auto const given = rights(file);
    replace(file);
    EXPECT_TRUE(rights(file) == given && given != usual);
    for (auto const& bytes : {std::string(2000000, 'x'), std::string{"two\r\n"}}) {
        replace_file(foreign, bytes);
        EXPECT_EQ(read_file(foreign), bytes);
    }
    EXPECT_EQ(names(), (std::set<std::string>{"file", "\u0416uk"}));
}

TEST_F(WholeFile, that_cannot_be_replaced_stays)
{
    auto const file = path("file"), bad = path("a*b");
    write("file", "whole");
    fs::permissions(file, fs::perms{0444});
    EXPECT_EQ(caught(replace, file).text, "Permission denied: " + file);
    fs::permissions(file, fs::perms{0666});
    EXPECT_EQ(caught(replace, bad).text, "The file name cannot be used: " + bad);
    constexpr DWORD most = FILE_SHARE_READ | FILE_SHARE_WRITE, all = most | FILE_SHARE_DELETE;
    for (DWORD const sharing : {DWORD{FILE_SHARE_READ}, most, all}) {
        auto* const other = ::CreateFileA(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
        auto const text = caught(replace, file).text;
        ::CloseHandle(other);
        // Where all is shared not every system refuses.
        EXPECT_TRUE(sharing == all || text == "The file is in use: " + file) << text;
        EXPECT_EQ(read("file") == "whole", !text.empty());
        EXPECT_EQ(names(), std::set<std::string>{"file"});
    }
}

#else

/// Takes the superuser's privileges away for a while: permissions mean nothing to him.
class OrdinaryUser {
public:
    OrdinaryUser() : privileged_(::geteuid() == 0 && ::setreuid(nobody, 0) == 0 && ::seteuid(nobody) == 0) {}
    OrdinaryUser(OrdinaryUser&&) = delete;
    ~OrdinaryUser()
    {
        if (privileged_ && (::seteuid(0) != 0 || ::setreuid(0, 0) != 0)) std::abort();
    }

private:
    static constexpr uid_t nobody = 65534;
    bool privileged_;
};

TEST_F(WholeFile, replaces_a_file_and_keeps_links_and_permissions)
{
    auto const old = path("old"), once = path("links/once"), twice = path("links/twice"),
               dangling = path("links/dangling");
    write("old", std::string(200000, 'x'));
    EXPECT_EQ(read_file(old).size(), 200000U);
    fs::permissions(old, fs::perms{0640});
    fs::create_directory(path("links"));
    fs::create_symlink("../old", once);
    fs::create_symlink("once", twice);
    replace_file(twice, "two");
    EXPECT_TRUE(fs::is_symlink(twice) && fs::is_symlink(once));
    EXPECT_EQ(read("old"), "two");
    EXPECT_EQ(fs::status(old).permissions(), fs::perms{0640});
    fs::create_symlink(path("born"), dangling);
    EXPECT_FALSE(FileExists(dangling));
    replace_file(dangling, "three");
    EXPECT_TRUE(FileExists(dangling));
    EXPECT_EQ(read("born"), "three");
    EXPECT_EQ(names(), (std::set<std::string>{"born", "links", "old"}));
}

TEST_F(WholeFile, respects_permissions)
{
    auto const file = path("file"), secret = path("secret"), shut = path("shut");
    for (char const* name : {"file", "secret"}) write(name, "whole");
    fs::create_directory(path("shut"));
    for (auto const& [name, mode] : {std::pair{"file", 0444U}, {"secret", 0U}, {"shut", 0555U}, {"", 0777U}})
        fs::permissions(path(name), fs::perms{mode});
    OrdinaryUser user;
    if (::geteuid() == 0) GTEST_SKIP() << "the superuser may do everything";
    EXPECT_EQ(read_file(file), "whole");
    EXPECT_EQ(caught(replace, file).text, "Permission denied: " + file);
    EXPECT_EQ(caught(read_file, secret).text, "Permission denied: " + secret);
    EXPECT_EQ(caught(replace, shut + "/new").text, "Permission denied: " + shut);
    EXPECT_EQ(names(), (std::set<std::string>{"file", "secret", "shut"}));
    EXPECT_EQ(read("file"), "whole");
}

#endif

} // namespace
} // namespace warhost
