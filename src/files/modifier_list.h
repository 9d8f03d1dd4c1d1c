// The misc modifier catalogue: what a list file says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

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
/// UTF-8 (a byte-order mark is skipped) or else Windows-1252. The list ends after an entry without values, with
/// nothing after its comma, or with neither name nor comma. A last name line without a values line makes no entry.
/// Holds the file's bytes; an entry is made when it is asked for, as a list may have millions.
class ModifierList {
public:
    ModifierList() = default;
    explicit ModifierList(std::string bytes);

    /// The next entry; nothing at the end. Throws only std::bad_alloc, and then gives the same entry when called again.
    [[nodiscard]] std::optional<ModifierEntry> next();

private:
    std::string bytes_;
    std::size_t at_ = 0;
    bool is_utf8_ = true;
};

} // namespace warhost
