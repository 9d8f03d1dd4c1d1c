#include "files/modifier_list.h"

#include "army/value_conversion.h"
#include "files/code_page.h"

#include <optional>
#include <utility>

namespace warhost {

namespace {

std::string decoded(std::string_view bytes)
{
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byte_order_mark)) bytes.remove_prefix(byte_order_mark.size());
    return is_utf8(bytes) ? std::string{bytes} : utf8_of_windows_1252(bytes);
}

/// Takes the next line off rest; nothing at the end of the file.
std::optional<std::string_view> next_line(std::string_view& rest)
{
    if (rest.empty()) return {};
    auto const end = rest.find('\n');
    auto line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

} // namespace

std::vector<ModifierEntry> parse_modifier_list(std::string_view bytes)
{
    std::vector<ModifierEntry> entries;
    std::string const text = decoded(bytes);
    std::string_view rest = text;
    while (!rest.empty()) {
        auto const name = next_line(rest);
        auto const values_line = next_line(rest);
        if (!values_line) break;

        ModifierEntry entry;
        entry.name = without_outer(" ", *name);
        std::string_view values = *values_line;
        if (auto const bar = values.find('|'); bar != std::string_view::npos) {
            entry.help_topic = TextToInt(values.substr(0, bar));
            values.remove_prefix(bar + 1);
        }
        entry.low = entry.high = entry.initial = TextToInt(values);
        std::string_view last_text = *name; // or what follows the comma
        if (auto const comma = values.find(','); comma != std::string_view::npos) {
            last_text = values.substr(comma + 1);
            entry.high = TextToInt(last_text);
        }
        if (entry.low > entry.high) std::swap(entry.low, entry.high);
        entries.push_back(std::move(entry));
        if (values.empty() || last_text.empty()) break;
    }
    return entries;
}

} // namespace warhost
