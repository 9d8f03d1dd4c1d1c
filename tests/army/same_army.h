// Compares two armies, and shows the members that differ.
#pragma once

#include "army/army.h"

#include <concepts>
#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace warhost {

template <class Value>
void show_difference(testing::AssertionResult& result, std::string const& name, Value const& one, Value const& other)
{
    if (one == other) return;
    if constexpr (std::same_as<Value, ReservedList>) show_difference(result, name, one.encoded, other.encoded);
    else if constexpr (requires { std::tuple_size<Value>::value; })
        for (std::size_t k = 0; k < one.size(); ++k)
            show_difference(result, name + "[" + std::to_string(k) + "]", one[k], other[k]);
    else if constexpr (std::same_as<Value, std::uint8_t>) show_difference(result, name, int{one}, int{other});
    else result << "\n  " << name << ": " << one << " and " << other;
}

inline testing::AssertionResult same(Army const& one, Army const& other)
{
    if (one == other) return testing::AssertionSuccess();
    testing::AssertionResult result = testing::AssertionFailure() << "the armies differ:";
    auto const show = [&](char const* name, auto member) { show_difference(result, name, one.*member, other.*member); };
    // clang-format off
    show("Name", &Army::Name); show("UnitType", &Army::UnitType); show("UnitNum", &Army::UnitNum);
    show("ReservedAfterUnits", &Army::ReservedAfterUnits); show("TotalNo", &Army::TotalNo); show("Opt", &Army::Opt);
    show("OptValue", &Army::OptValue); show("MiscCheck", &Army::MiscCheck); show("MiscValue", &Army::MiscValue);
    show("ReservedAfterMisc", &Army::ReservedAfterMisc); show("RatioBonus", &Army::RatioBonus);
    show("TotalMod", &Army::TotalMod); show("ReservedAfterTotal", &Army::ReservedAfterTotal);
    show("ReservedNumberLists", &Army::ReservedNumberLists); show("ReservedBetweenLists", &Army::ReservedBetweenLists);
    show("ReservedTextLists", &Army::ReservedTextLists); show("LevelBonus", &Army::LevelBonus);
    show("ReservedAfterLevelBonus", &Army::ReservedAfterLevelBonus); show("Level", &Army::Level);
    show("OtherLevel", &Army::OtherLevel); show("ReservedAfterLevels", &Army::ReservedAfterLevels);
    show("ReservedTexts", &Army::ReservedTexts);
    // clang-format on
    return result;
}

} // namespace warhost
