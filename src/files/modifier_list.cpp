#include "files/modifier_list.h"

#include "army/value_conversion.h"
#include "base/code_page.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace warhost {

namespace {

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

ModifierList::ModifierList(std::string bytes) : bytes_(std::move(bytes))
{
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (bytes_.starts_with(byte_order_mark)) at_ = byte_order_mark.size();
    is_utf8_ = is_utf8(std::string_view{bytes_}.substr(at_));
}

std::optional<ModifierEntry> ModifierList::next()
{
    std::string_view rest = std::string_view{bytes_}.substr(at_);
    auto const name = next_line(rest);
    auto const values_line = next_line(rest);
    if (!values_line) return {};

    ModifierEntry entry;
    std::string_view const trimmed = without_outer(" ", *name);
    entry.name = is_utf8_ ? std::string{trimmed} : utf8_of_windows_1252(trimmed);
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
    bool const ends = values.empty() || last_text.empty();
    at_ = ends ? bytes_.size() : bytes_.size() - rest.size();
    return entry;
}

} // namespace warhost
