// A step that failed, and the one table of failure numbers and texts.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace warhost {

/// What a failing step throws: a number, never 0, and a text for the user. Number 0 means "nothing failed".
struct Failure {
    std::int32_t number = 0;
    std::string text;
};

enum class Fault : std::int32_t {
    overflow = 101,
    no_such_control = 102,
    file_not_found = 201,
    folder_not_found = 202,
    permission_denied = 203,
    is_a_folder = 204,
    not_a_file = 205,
    bad_name = 206,
    read_only = 207,
    disk_full = 208,
    too_large = 209,
    too_many_open = 210,
    link_loop = 211,
    busy = 212,
    device_error = 213,
    out_of_memory = 214,
    not_available = 215,
    connection_lost = 216,
    foreign_link = 217,
    file_error = 219,
    file_too_short = 301,
    outside_code_page = 302,
    text_too_long = 303,
};

struct FaultText {
    Fault fault;
    std::string_view text;
};

inline constexpr std::array fault_texts{
    FaultText{Fault::overflow, "The number is too large"},
    FaultText{Fault::no_such_control, "There is no such control"},
    FaultText{Fault::file_not_found, "The file was not found"},
    FaultText{Fault::folder_not_found, "The folder was not found"},
    FaultText{Fault::permission_denied, "Permission denied"},
    FaultText{Fault::is_a_folder, "This is a folder, not a file"},
    FaultText{Fault::not_a_file, "This is not an ordinary file"},
    FaultText{Fault::bad_name, "The file name cannot be used"},
    FaultText{Fault::read_only, "The disk is read-only"},
    FaultText{Fault::disk_full, "The disk is full"},
    FaultText{Fault::too_large, "The file is too large"},
    FaultText{Fault::too_many_open, "Too many files are open"},
    FaultText{Fault::link_loop, "The symbolic links form a loop"},
    FaultText{Fault::busy, "The file is in use"},
    FaultText{Fault::device_error, "The disk or network reported an error"},
    FaultText{Fault::out_of_memory, "There is not enough memory"},
    FaultText{Fault::not_available, "The disk or network folder does not answer"},
    FaultText{Fault::connection_lost, "The connection to the network folder was lost"},
    FaultText{Fault::foreign_link, "A symbolic link of another user is not followed here"},
    FaultText{Fault::file_error, "The file could not be used"},
    FaultText{Fault::file_too_short, "The file is not a complete army"},
    FaultText{Fault::outside_code_page, "A character cannot be stored in an army file"},
    FaultText{Fault::text_too_long, "A text is too long for an army file"},
};

constexpr std::string_view fault_text(Fault fault)
{
    for (auto const& row : fault_texts) {
        if (row.fault == fault) return row.text;
    }
    return {};
}

/// The failure of a row of the table; detail, when there is one, follows its text after ": ".
inline Failure failure_of(Fault fault, std::string_view detail = {})
{
    std::string text{fault_text(fault)};
    if (!detail.empty()) text.append(": ").append(detail);
    return {static_cast<std::int32_t>(fault), std::move(text)};
}

} // namespace warhost
