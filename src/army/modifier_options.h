// The modifier categories and their options.
#pragma once

#include "army/army.h"

#include <array>
#include <string_view>

namespace warhost {

/// Option button `index`, which is also its place in an army file: a tag is one whole number, or the lowest and the
/// highest of a range.
struct Option {
    int index;
    int category;
    std::string_view caption;
    std::string_view tag;
};

// clang-format off
/// The rows of one category stand together, in screen order.
inline constexpr std::array options{
    Option{ 0, 0, "Mob (-2)", "-2"},
    Option{ 1, 0, "Trained", "0"},
    Option{ 2, 0, "Disciplined (+1)", "1"},
    Option{ 3, 0, "Highly Disciplined (2-4)", "2,4"},
    Option{ 4, 1, "Poor (-2)", "-2"},
    Option{ 5, 1, "Average", "0"},
    Option{ 6, 1, "Masterwork (+2)", "2"},
    Option{ 7, 2, "< 9 (-2)", "-2"},
    Option{ 8, 2, "10 to 12", "0"},
    Option{ 9, 2, "13 to 15 (+1)", "1"},
    Option{10, 2, "16 to 18 (+2)", "2"},
    Option{11, 2, "19 to 21 (+3)", "3"},
    Option{12, 2, "22 plus (+4 or greater)", "4,15"},
    Option{13, 3, "+1 to +3 (+1)", "1"},
    Option{14, 3, "+4 to +7 (+2)", "2"},
    Option{15, 3, "+8 to +11 (+3)", "3"},
    Option{16, 3, "+12 to +14 (+4)", "4"},
    Option{17, 3, "+15 to +19 (+5)", "5"},
    Option{18, 3, "+20 to +25 (+6)", "6"},
    Option{19, 3, "> +25 (+8)", "8"},
    Option{20, 4, "3 to 9 (-2)", "-2"},
    Option{21, 4, "10 to 11", "0"},
    Option{22, 4, "12 to 13 (+1)", "1"},
    Option{23, 4, "14 to 15 (+2)", "2"},
    Option{24, 4, "16 to 17 (+3)", "3"},
    Option{39, 4, "18 to 19 (+4)", "4"},
    Option{40, 4, "20+ (+5)", "5"},
    Option{25, 5, "None", "0"},
    Option{26, 5, "Any of significance (+1)", "1"},
    Option{27, 5, "2% of force possesses (+2)", "2"},
    Option{28, 5, "3% to 10% of force (+3)", "3"},
    Option{29, 5, "11% or greater (+5 or more)", "5,20"},
    Option{41, 7, "<10 ft. (-3)", "-3"},
    Option{42, 7, "10 ft. (-2)", "-2"},
    Option{43, 7, "20 ft. (-1)", "-1"},
    Option{44, 7, "30 ft.", "0"},
    Option{45, 7, "40 ft. (+1)", "1"},
    Option{46, 7, "50 ft.+ (+2)", "2"},
};

/// Frame captions, by category.
inline constexpr std::array<std::string_view, category_count> category_captions{
    "Discipline", "Equipment Quality", "Armor Class", "Base Attack Bonus",
    "Leadership", "Magic",             "Experience",  "Avg Move",
};
// clang-format on

/// The row of option button `index`; nullptr when there is no such button.
constexpr Option const* option_of(int index)
{
    for (auto const& option : options) {
        if (option.index == index) return &option;
    }
    return nullptr;
}

constexpr bool each_option_once()
{
    for (auto const& option : options) {
        if (option.index < 0 || option.index >= record_choices || option.category >= category_count) return false;
        if (option_of(option.index) != &option) return false;
    }
    return true;
}

static_assert(each_option_once());

} // namespace warhost
