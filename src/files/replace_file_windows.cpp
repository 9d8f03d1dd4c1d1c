#include "files/system_file.h"

#include "files/handle_windows.h"
#include "files/temporary_name.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace warhost {

namespace {

constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

using Rights = std::vector<unsigned char>;

/// Who may do what with a file; empty where its file system does not tell.
Rights rights_of(File const& file)
{
    DWORD size = 0;
    ::GetKernelObjectSecurity(file.handle(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    Rights rights(size);
    bool const told =
        ::GetKernelObjectSecurity(file.handle(), DACL_SECURITY_INFORMATION, rights.data(), size, &size) != 0;
    return told ? rights : Rights{};
}

/// When a file was made and how it is marked; the other times, left 0, are not set.
FILE_BASIC_INFO marks_of(File const& file)
{
    FILE_BASIC_INFO found{}, marks{};
    require(::GetFileInformationByHandleEx(file.handle(), FileBasicInfo, &found, sizeof found) != 0);
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    marks.CreationTime = found.CreationTime;
    marks.FileAttributes = (found.FileAttributes & kept) | FILE_ATTRIBUTE_ARCHIVE;
    return marks;
}

/// The file that an open one is when its path led there through links.
std::filesystem::path path_of(File const& file)
{
    std::wstring path(::GetFinalPathNameByHandleW(file.handle(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    auto const size = static_cast<DWORD>(path.size());
    auto const length = ::GetFinalPathNameByHandleW(file.handle(), path.data(), size, FILE_NAME_NORMALIZED);
    require(length != 0 && length < size);
    path.resize(length);
    return path;
}

/// Removes what killed saves left in the folder, as far as that is quick and this user may. What a save has open stays.
void remove_leftovers(std::filesystem::path const& folder)
{
    constexpr ULONGLONG longest_search = 300; // milliseconds
    auto const end = ::GetTickCount64() + longest_search;
    WIN32_FIND_DATAW found{};
    auto* const search = ::FindFirstFileW((folder / L".warhost-*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        constexpr DWORD not_ours = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
        auto const* const name = static_cast<wchar_t const*>(found.cFileName);
        if ((found.dwFileAttributes & not_ours) == 0 && is_temporary_name(name)) ::DeleteFileW((folder / name).c_str());
    } while (::GetTickCount64() <= end && ::FindNextFileW(search, &found) != 0);
    ::FindClose(search);
}

/// A new file in a folder, deleted unless it is put in place.
class NewFile {
public:
    explicit NewFile(std::filesystem::path const& folder)
    {
        std::random_device random;
        do name_ = folder / temporary_name(std::uint64_t{random()} << 32U | random());
        while (!file_.open(name_, GENERIC_WRITE | DELETE, 0, CREATE_NEW) && taken());
    }
    NewFile(NewFile const&) = delete;
    NewFile& operator=(NewFile const&) = delete;
    ~NewFile()
    {
        file_.close();
        if (!name_.empty()) ::DeleteFileW(name_.c_str());
    }

    /// Network folders often let nobody change rights, so that is asked for only where the folder gives others.
    void take_over_rights(Rights rights) const
    {
        if (rights_of(file_) == rights) return;
        File same;
        require(same.open(name_, WRITE_DAC, share_all, OPEN_EXISTING));
        require(::SetKernelObjectSecurity(same.handle(), DACL_SECURITY_INFORMATION, rights.data()) != 0);
    }

    void take_over_marks(FILE_BASIC_INFO marks) const
    {
        require(::SetFileInformationByHandle(file_.handle(), FileBasicInfo, &marks, sizeof marks) != 0);
    }

    void write(std::string_view bytes) const
    {
        constexpr std::size_t most_at_once = std::size_t{1} << 20U;
        while (!bytes.empty()) {
            auto const size = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), most_at_once));
            DWORD written = 0;
            require(::WriteFile(file_.handle(), bytes.data(), size, &written, nullptr) != 0);
            bytes.remove_prefix(written);
        }
    }

    void flush() const { require(::FlushFileBuffers(file_.handle()) != 0); }

    /// Open all the while, so that no other save takes it for abandoned.
    void put_in_place(std::filesystem::path const& target)
    {
        std::wstring const& path = target.native();
        std::vector<unsigned char> room(sizeof(FILE_RENAME_INFO) + path.size() * sizeof(wchar_t));
        auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(room.data());
        info->ReplaceIfExists = TRUE;
        info->FileNameLength = static_cast<DWORD>(path.size() * sizeof(wchar_t));
        std::copy(path.begin(), path.end(), info->FileName);
        auto const size = static_cast<DWORD>(room.size());
        require(::SetFileInformationByHandle(file_.handle(), FileRenameInfo, info, size) != 0);
        name_.clear();
    }

private:
    /// Whether creating the file failed for no other reason than its name.
    static bool taken()
    {
        require(::GetLastError() == ERROR_FILE_EXISTS);
        return true;
    }

    std::filesystem::path name_;
    File file_;
};

} // namespace

void replace_durably(std::filesystem::path const& path, std::string_view bytes)
{
    auto place = unlimited(path);
    require_no_folder(place);
    DWORD const attributes = ::GetFileAttributesW(place.c_str());
    bool const exists = attributes != INVALID_FILE_ATTRIBUTES;
    Rights rights;
    FILE_BASIC_INFO marks{};
    if (exists) {
        // What is marked read-only, or must not be written, or is in use, stays.
        if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) fail(ERROR_ACCESS_DENIED);
        File old; // a link that leads to nothing cannot be opened either, and stays
        require(old.open(place, GENERIC_WRITE | DELETE, share_all, OPEN_EXISTING));
        require_ordinary(old, path);
        rights = rights_of(old);
        marks = marks_of(old);
        if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) place = path_of(old);
    } else {
        require(::GetLastError() == ERROR_FILE_NOT_FOUND);
    }
    if (is_temporary_name(place.filename().native())) fail(ERROR_INVALID_NAME);
    remove_leftovers(place.parent_path());
    NewFile file{place.parent_path()};
    if (!rights.empty()) file.take_over_rights(rights);
    file.write(bytes);
    if (exists) file.take_over_marks(marks);
    file.flush();
    file.put_in_place(place);
}

} // namespace warhost
