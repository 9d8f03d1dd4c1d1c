// The army record: everything that the program knows about one army, and everything that an army file holds.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace warhost {

inline constexpr int unit_rows = 8;        // unit rows on the screen
inline constexpr int record_units = 31;    // unit rows in the record
inline constexpr int record_choices = 101; // entries of each choice array, 0 to 100
inline constexpr int category_count = 8;

/// Bytes of the record that no rule reads: copied from file to file unchanged, zero in a new army.
template <std::size_t size> using Reserved = std::array<std::uint8_t, size>;

/// A list of the record that no rule reads, in its encoded form; a new army holds lists that were never sized.
struct ReservedList {
    std::string encoded{'\0', '\0'};
    bool operator==(ReservedList const&) const = default;
};

/// Members in the order of the file. Texts are UTF-8; reserved texts keep the file's own bytes.
struct Army {
    std::string Name;
    std::array<std::string, record_units> UnitType;
    std::array<std::int32_t, record_units> UnitNum{}; // soldiers; rows 0 to 7 are on the screen
    Reserved<372> ReservedAfterUnits{};
    std::int32_t TotalNo = 0;                             // soldiers of rows 0 to 7
    std::array<std::int16_t, record_choices> Opt{};       // -1 selected, 0 not selected
    std::array<std::int32_t, record_choices> OptValue{};  // result of modifier category i
    std::array<std::int16_t, record_choices> MiscCheck{}; // 1 checked, 0 unchecked; entry 0 is never used
    std::array<std::int32_t, record_choices> MiscValue{}; // value of misc row i; entry 0 is never used
    Reserved<4> ReservedAfterMisc{};
    std::int16_t RatioBonus = 0; // 0 to 20
    std::int32_t TotalMod = 0;
    Reserved<6> ReservedAfterTotal{};
    std::array<ReservedList, 3> ReservedNumberLists;
    Reserved<4> ReservedBetweenLists{};
    std::array<ReservedList, 2> ReservedTextLists;
    std::int16_t LevelBonus = 0; // 0 to 20
    Reserved<14> ReservedAfterLevelBonus{};
    float Level = 0;      // this army's average troop level
    float OtherLevel = 0; // the other army's, as last passed on
    Reserved<16> ReservedAfterLevels{};
    std::array<std::string, 4> ReservedTexts;

    bool operator==(Army const&) const = default;
};

} // namespace warhost
