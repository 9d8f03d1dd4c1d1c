// Any bytes are a list of sound rows.

#include "files/modifier_list.h"
#include "require.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
    std::string_view const bytes = as_text(data, size);
    auto const entries = warhost::parse_modifier_list(bytes);
    require(entries.size() <= static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')));
    for (auto const& entry : entries) {
        require(entry.low <= entry.high && -32000 <= entry.low && entry.high <= 32000);
        require(entry.initial == entry.low || entry.initial == entry.high);
        require(!entry.name.starts_with(' ') && !entry.name.ends_with(' '));
    }
    return 0;
}
