// File handles and errors of Windows.
#pragma once

#include <filesystem>
#include <windows.h>

namespace warhost {

[[noreturn]] void fail(DWORD error);

/// Fails with the last error unless the call before it succeeded.
void require(bool succeeded);

/// The absolute path in the form that may be of any length. Fails for a file name of more than 255 characters.
std::filesystem::path unlimited(std::filesystem::path const& path);

class File {
public:
    File() = default;
    File(File const&) = delete;
    File& operator=(File const&) = delete;
    ~File() { close(); }

    [[nodiscard]] bool open(std::filesystem::path const& path, DWORD access, DWORD sharing, DWORD disposition);
    void close();
    HANDLE handle() const { return handle_; }

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// Fails for a folder, and for an open pipe or device.
void require_no_folder(std::filesystem::path const& path);
void require_ordinary(File const& file, std::filesystem::path const& path);

} // namespace warhost
