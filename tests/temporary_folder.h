// A folder of its own for one test, gone with everything in it at the end.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>

namespace warhost {

class TemporaryFolder {
public:
    TemporaryFolder()
    {
        auto const start = (std::filesystem::temp_directory_path() / "warhost-test-").string();
        do folder_ = start + std::to_string(std::random_device{}());
        while (!std::filesystem::create_directory(folder_));
        std::filesystem::permissions(folder_, std::filesystem::perms{0755});
    }
    TemporaryFolder(TemporaryFolder&&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(folder_); }

    std::string path(std::string const& name = {}) const
    {
        return name.empty() ? folder_ : folder_ + static_cast<char>(std::filesystem::path::preferred_separator) + name;
    }
    void write(std::string const& to, std::string const& text) const
    {
        std::ofstream{path(to), std::ios::binary} << text;
    }
    std::string read(std::string const& name) const
    {
        std::ifstream file{path(name), std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    std::set<std::string> names() const
    {
        std::set<std::string> found;
        for (auto const& entry : std::filesystem::directory_iterator{folder_})
            found.insert(entry.path().filename().string());
        return found;
    }

private:
    std::string folder_;
};

} // namespace warhost
