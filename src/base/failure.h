// A step that failed, and the numbers and texts of all failures.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace warhost {

/// What a failing step throws: a number, never 0, and a text for the user. Number 0 means "nothing failed".
struct Failure : std::exception {
    Failure() = default;
    Failure(std::int32_t fault_number, std::string description) : number(fault_number), text(std::move(description)) {}

    char const* what() const noexcept override { return text.c_str(); }

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

/// The text shown for a fault.
constexpr std::string_view fault_text(Fault fault)
{
    switch (fault) {
    case Fault::overflow: return "The number is too large";
    case Fault::no_such_control: return "There is no such control";
    case Fault::file_not_found: return "The file was not found";
    case Fault::folder_not_found: return "The folder was not found";
    case Fault::permission_denied: return "Permission denied";
    case Fault::is_a_folder: return "This is a folder, not a file";
    case Fault::not_a_file: return "This is not an ordinary file";
    case Fault::bad_name: return "The file name cannot be used";
    case Fault::read_only: return "The disk is read-only";
    case Fault::disk_full: return "The disk is full";
    case Fault::too_large: return "The file is too large";
    case Fault::too_many_open: return "Too many files are open";
    case Fault::link_loop: return "The symbolic links form a loop";
    case Fault::busy: return "The file is in use";
    case Fault::device_error: return "The disk or network reported an error";
    case Fault::out_of_memory: return "There is not enough memory";
    case Fault::not_available: return "The disk or network folder does not answer";
    case Fault::connection_lost: return "The connection to the network folder was lost";
    case Fault::foreign_link: return "A symbolic link of another user is not followed here";
    case Fault::file_error: return "The file could not be used";
    case Fault::file_too_short: return "The file is not a complete army";
    case Fault::outside_code_page: return "A character cannot be stored in an army file";
    case Fault::text_too_long: return "A text is too long for an army file";
    }
    return {};
}

/// The failure of a fault; detail, when there is one, follows its text after ": ".
inline Failure failure_of(Fault fault, std::string_view detail = {})
{
    std::string text{fault_text(fault)};
    if (!detail.empty()) text.append(": ").append(detail);
    return {static_cast<std::int32_t>(fault), std::move(text)};
}

} // namespace warhost
