// Any document is paragraphs of printable runs, no longer than it allows.

#include "base/code_page.h"
#include "require.h"
#include "ui/rich_text_reader.h"

#include <algorithm>
#include <cstddef>

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
    auto const paragraphs = warhost::read_rich_text(as_text(data, size));
    require(!paragraphs.empty());
    std::size_t length = 0;
    for (auto const& paragraph : paragraphs) {
        for (auto const& run : paragraph) {
            length += run.text.size();
            require(!run.text.empty() && warhost::is_utf8(run.text));
            require(std::none_of(run.text.begin(), run.text.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; }));
        }
    }
    require(length <= 3 * size);
    return 0;
}
