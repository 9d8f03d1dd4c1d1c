#include "files/temporary_name.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace warhost {

namespace fs = std::filesystem;

namespace {

constexpr int number_base = 16;
constexpr std::size_t most_digits = 16;

auto const prefix = fs::path{".warhost-"}.native();
auto const suffix = fs::path{".tmp"}.native();
auto const digits = fs::path{"0123456789abcdef"}.native();

} // namespace

fs::path temporary_name(std::uint64_t number)
{
    std::array<char, most_digits> text{};
    char const* const end = std::to_chars(text.data(), text.data() + text.size(), number, number_base).ptr;
    char const* const begin = text.data();
    return fs::path{prefix}.concat(begin, end).concat(suffix);
}

bool is_temporary_name(std::basic_string_view<fs::path::value_type> name)
{
    if (!name.starts_with(prefix) || !name.ends_with(suffix)) return false;
    name.remove_prefix(prefix.size());
    name.remove_suffix(suffix.size());
    return !name.empty() && name.size() <= most_digits && name.find_first_not_of(digits) == decltype(name)::npos;
}

} // namespace warhost
