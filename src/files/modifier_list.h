// The misc modifier catalogue: what a list file says.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace warhost {

/// One row of the panel. low <= high; initial is the end that the file names first.
struct ModifierEntry {
    std::string name; // UTF-8, without outer blanks
    std::int16_t help_topic = 0;
    std::int16_t low = 0;
    std::int16_t high = 0;
    std::int16_t initial = 0;

    bool operator==(ModifierEntry const&) const = default;
};

/// The entries of a list file: a name line and a values line each ("topic|first,second"), ended by CR LF or LF, in
/// UTF-8 (a byte-order mark is skipped) or else Windows-1252. Reading ends after an entry without values, with
/// nothing after its comma, or with neither name nor comma. A last name line without a values line makes no entry.
/// Never fails.
std::vector<ModifierEntry> parse_modifier_list(std::string_view bytes);

} // namespace warhost
