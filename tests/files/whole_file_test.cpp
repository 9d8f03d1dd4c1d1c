#include "files/whole_file.h"

#include "caught.h"
#include "temporary_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <grp.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace warhost {
namespace {

namespace fs = std::filesystem;

void replace(std::string const& path) { replace_file(path, std::string(1001, 'x')); }

struct WholeFile : testing::Test, TemporaryFolder {
    void expect_refused(auto run, std::string const& name, std::string const& cause) const
    {
        EXPECT_EQ(caught(run, path(name)).text, cause + path(name));
    }
};

TEST_F(WholeFile, reports_why_it_cannot_be_used_and_leaves_everything_as_it_was)
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
        {"file/x", "The folder was not found: "}, {"pipe", "This is not an ordinary file: "},
        {"loop", "The symbolic links form a loop: "},
#endif
        {std::string(300, 'n'), "The file name cannot be used: "},
        {std::string("file\0.Army", 10), "The file name cannot be used: "},
    };
    // clang-format on
    for (auto const& [name, text] : cases) {
        expect_refused(read_file, name, text);
        expect_refused(replace, name, text);
        EXPECT_EQ(FileExists(path(name)), name == "pipe");
        EXPECT_EQ(names(), before);
    }
    expect_refused(read_file, "missing", "The file was not found: ");
    expect_refused(replace, "missing/x", "The folder was not found: ");
    expect_refused(replace, ".warhost-7f.tmp", "The file name cannot be used: ");
    EXPECT_EQ(read("file"), "whole");
}

TEST_F(WholeFile, is_read_up_to_64_MiB)
{
    write("file", "x");
    fs::resize_file(path("file"), std::size_t{64} << 20U);
    EXPECT_EQ(read_file(path("file")).size(), std::size_t{64} << 20U);
    fs::resize_file(path("file"), (std::size_t{64} << 20U) + 1);
    expect_refused(read_file, "file", "The file is too large: ");
}

TEST_F(WholeFile, clears_what_killed_saves_left_and_nothing_else)
{
    for (char const* name : {".warhost-0.tmp", ".warhost-00ffa81c2b3d4e5f.tmp"}) write(name, "half");
    std::set<std::string> others{".warhost-.tmp", ".warhost-notes.tmp", ".warhost-1.bak",
                                 ".warhost-00ffa81c2b3d4e5f6.tmp", "warhosts-1.tmp"};
    for (auto const& name : others) write(name, "whole");
    fs::create_directory(path(".warhost-d.tmp"));
    others.insert({".warhost-d.tmp", "file"});
    replace(path("file"));
    EXPECT_EQ(names(), others);
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
    EXPECT_EQ(rights(file), given);
    EXPECT_NE(given, usual);
    ::SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
    replace(file);
    EXPECT_EQ(::GetFileAttributesA(file.c_str()), DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE});
    auto const folder = path(std::string(150, 'd'));
    fs::create_directory(folder);
    for (auto const& bytes : {std::string(2000000, 'x'), std::string{"two\r\n"}}) {
        for (auto const& name : {foreign, folder + "/" + std::string(150, 'n')}) { // more than 260 characters
            replace_file(name, bytes);
            EXPECT_TRUE(FileExists(name));
            EXPECT_EQ(read_file(name), bytes);
        }
    }
    fs::remove_all(R"(\\?\)" + folder);
    EXPECT_EQ(names(), (std::set<std::string>{"file", "\u0416uk"}));
}

TEST_F(WholeFile, that_cannot_be_replaced_stays)
{
    auto const file = path("file");
    write("file", "whole");
    fs::permissions(file, fs::perms{0444});
    expect_refused(replace, "file", "Permission denied: ");
    fs::permissions(file, fs::perms{0666});
    expect_refused(replace, "a*b", "The file name cannot be used: ");
    constexpr DWORD most = FILE_SHARE_READ | FILE_SHARE_WRITE, all = most | FILE_SHARE_DELETE;
    for (DWORD const sharing : {DWORD{FILE_SHARE_READ}, most, all}) {
        auto* const other = ::CreateFileA(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
        auto const text = caught(replace, file).text;
        ::CloseHandle(other);
        EXPECT_TRUE(sharing == all || text == "The file is in use: " + file) << text; // not every system refuses all
        EXPECT_EQ(read("file") == "whole", !text.empty());
        EXPECT_EQ(names(), std::set<std::string>{"file"});
    }
}

#else

constexpr uid_t nobody = 65534, stranger = 1000;

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
    bool privileged_;
};

/// Tests with files of several users, which only the superuser can make.
struct SharedFile : WholeFile {
    void SetUp() override
    {
        if (::geteuid() != 0) GTEST_SKIP() << "needs the superuser";
    }
    void give(std::string const& name, uid_t user, gid_t group, unsigned mode) const
    {
        EXPECT_EQ(::lchown(path(name).c_str(), user, group), 0);
        EXPECT_TRUE(fs::is_symlink(path(name)) || ::chmod(path(name).c_str(), mode) == 0);
    }
    void make_folder(std::string const& name, uid_t user, unsigned mode) const
    {
        fs::create_directory(path(name));
        give(name, user, 0, mode);
    }
    std::string saved_by_nobody(std::string const& name) const
    {
        OrdinaryUser const user;
        return caught(replace, path(name)).text;
    }
};

TEST_F(WholeFile, replaces_a_file_and_keeps_links_and_permissions)
{
    auto const once = path("links/once"), twice = path("links/twice"), dangling = path("links/dangling");
    write("old", "one");
    fs::permissions(path("old"), fs::perms{0640});
    fs::create_directory(path("links"));
    fs::create_symlink("../old", once);
    fs::create_symlink("once", twice);
    replace_file(twice, "two");
    EXPECT_TRUE(fs::is_symlink(twice));
    EXPECT_TRUE(fs::is_symlink(once));
    EXPECT_EQ(read("old"), "two");
    EXPECT_EQ(fs::status(path("old")).permissions(), fs::perms{0640});
    fs::create_symlink(path("born"), dangling);
    EXPECT_FALSE(FileExists(dangling));
    replace_file(dangling, "three");
    EXPECT_TRUE(FileExists(dangling));
    EXPECT_EQ(read("born"), "three");
    EXPECT_EQ(names(), (std::set<std::string>{"born", "links", "old"}));
}

TEST_F(WholeFile, respects_permissions)
{
    for (char const* name : {"file", "secret"}) write(name, "whole");
    fs::create_directory(path("shut"));
    for (auto const& [name, mode] : {std::pair{"file", 0444U}, {"secret", 0U}, {"shut", 0555U}, {"", 0777U}})
        fs::permissions(path(name), fs::perms{mode});
    OrdinaryUser user;
    if (::geteuid() == 0) GTEST_SKIP() << "the superuser may do everything";
    EXPECT_EQ(read_file(path("file")), "whole");
    expect_refused(replace, "file", "Permission denied: ");
    expect_refused(read_file, "secret", "Permission denied: ");
    EXPECT_EQ(caught(replace, path("shut/new")).text, "Permission denied: " + path("shut"));
    EXPECT_EQ(names(), (std::set<std::string>{"file", "secret", "shut"}));
    EXPECT_EQ(read("file"), "whole");
}

TEST_F(WholeFile, stays_when_the_limit_on_file_sizes_is_reached)
{
    write("file", "whole");
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    rlimit const low{1000, old.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &low);
    Failure const failure = caught(replace, path("file")); // one byte more
    ::setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(failure.text, "The file is too large: " + path("file"));
    EXPECT_EQ(read("file"), "whole");
}

TEST_F(WholeFile, is_not_saved_into_a_folder_that_was_removed)
{
    auto const before = fs::current_path();
    fs::create_directory(path("folder"));
    fs::current_path(path("folder"));
    fs::remove(path("folder"));
    for (std::string const file : {"x.Army", "./x.Army", "../folder/x.Army"})
        EXPECT_EQ(caught(replace, file).text, "The folder was not found: " + file);
    fs::current_path(before);
}

TEST_F(SharedFile, is_not_replaced_through_a_link_that_another_user_placed)
{
    make_folder("own", nobody, 0700);
    make_folder("shared", 0, 01777);
    make_folder("open", 0, 0777);
    // clang-format off
    struct { std::string link, target; uid_t owner; bool followed; } const cases[] = {
        {"shared/mine", "../own/army", nobody, true}, {"shared/of_the_folder", "../own/army", 0, true},
        {"open/theirs", "../own/army", stranger, true}, {"own/handed", "../own/army", stranger, true},
        {"shared/theirs", "../own/army", stranger, false}, {"own/chain", "../shared/theirs", nobody, false},
        {"shared/dangling", "../own/new", stranger, false}, {"own/dangling", "../shared/dangling", nobody, false},
        {"shared/dangling_mine", "../own/new", nobody, true}};
    // clang-format on
    for (auto const& row : cases) {
        fs::create_symlink(row.target, path(row.link));
        give(row.link, row.owner, 0, 0);
        write("own/army", "whole");
        give("own/army", nobody, 0, 0600);
        auto const refusal = "A symbolic link of another user is not followed here: " + path(row.link);
        EXPECT_EQ(saved_by_nobody(row.link), row.followed ? "" : refusal);
        bool const is_new = row.target == "../own/new";
        EXPECT_EQ(read(is_new ? "own/new" : "own/army").size(), row.followed ? 1001U : is_new ? 0U : 5U) << row.link;
    }
}

TEST_F(SharedFile, keeps_its_owner_and_permissions_where_possible)
{
    // clang-format off
    struct { uid_t saver, owner; gid_t group; unsigned mode; char const* saved; } const cases[] = {
        {0, stranger, 4242, 0640, "1000:4242 640"}, {0, stranger, 0, 0600, "1000:0 600"},
        {0, stranger, 4242, 06775, "1000:4242 6775"}, {0, 0, 4242, 0664, "0:4242 664"},
        {nobody, nobody, 0, 0664, "65534:0 664"},
        {nobody, nobody, 4242, 0664, "65534:0 604"}, // no member: what the group might do, the new group must not
        {nobody, nobody, 4242, 0606, "65534:0 600"}, // and the old group must not what all others might
        {nobody, stranger, 0, 02660, "65534:0 660"}, {nobody, stranger, 4242, 04666, "65534:0 606"},
        {nobody, stranger, 4343, 0660, "65534:4343 660"}};
    // clang-format on
    gid_t const member_of = 4343;
    ASSERT_EQ(::setgroups(1, &member_of), 0);
    make_folder("folder", nobody, 0700);
    auto const file = path("folder/file");
    for (auto const& row : cases) {
        write("folder/file", "whole");
        give("folder/file", row.owner, row.group, row.mode);
        EXPECT_EQ(row.saver == nobody ? saved_by_nobody("folder/file") : caught(replace, file).text, "");
        struct stat is = {};
        EXPECT_EQ(::stat(file.c_str(), &is), 0);
        auto const saved = testing::Message()
                           << is.st_uid << ":" << is.st_gid << " " << std::oct << (is.st_mode & 07777U);
        EXPECT_EQ(saved.GetString(), row.saved) << row.owner << ":" << row.group << " " << std::oct << row.mode;
        fs::remove(file);
    }
}

TEST_F(SharedFile, leaves_the_temporary_files_of_others_and_those_in_use)
{
    make_folder("shared", 0, 0777);
    auto const make = [&](int number, uid_t owner) {
        auto const name = "shared/.warhost-" + std::to_string(number) + ".tmp";
        write(name, "half");
        give(name, owner, 0, 0666);
        return path(name);
    };
    for (int number = 0; number < 300; ++number) make(number, stranger);
    make(300, nobody); // the only one to go
    auto const linked = make(301, nobody), busy = make(302, nobody), pipe = path("shared/.warhost-a.tmp");
    fs::create_hard_link(linked, path("shared/army"));
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
    ASSERT_EQ(::lchown(pipe.c_str(), nobody, 0), 0);
    int const other_save = ::open(busy.c_str(), O_WRONLY);
    ASSERT_EQ(::flock(other_save, LOCK_EX), 0);
    for (int save = 0; save < 2; ++save) EXPECT_EQ(saved_by_nobody("shared/x.Army"), ""); // the second needs a name
    ::close(other_save);
    // The foreign ones, linked, its second name, busy, the pipe, the army.
    EXPECT_EQ(std::distance(fs::directory_iterator{path("shared")}, fs::directory_iterator{}), 300 + 5);
    EXPECT_FALSE(fs::exists(path("shared/.warhost-300.tmp")));
}

#endif

} // namespace
} // namespace warhost
