// Following a path to the file that a save replaces.
#pragma once

#include "files/descriptor_linux.h"

#include <filesystem>

namespace warhost {

/// Where a file is or will be. The folder stays open, so that a later change of the path leads nowhere else.
struct Place {
    Descriptor folder;
    std::filesystem::path folder_path; // for messages
    std::filesystem::path name;
};

/// The place that path leads to through its symbolic links; the last one may lead to a file that does not exist yet.
/// Refuses a link that another user placed in a folder with the sticky bit, where everybody may place links.
Place place_of(std::filesystem::path const& path);

/// Whether the file at the place is the one that was opened, or is missing if none was.
[[nodiscard]] bool holds(Place const& place, Descriptor const& opened);

[[nodiscard]] bool same_file(struct stat const& one, struct stat const& other);

} // namespace warhost
