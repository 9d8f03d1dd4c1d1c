// Any bytes are refused, or they are an army that saves to the bytes it came from.

#include "files/army_format.h"
#include "require.h"

#include "army/failure.h"

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
    using namespace warhost;
    std::string_view const bytes = as_text(data, size);
    try {
        std::string const saved = encode_army(decode_army(bytes));
        require(bytes.starts_with(saved));
        require(encode_army(decode_army(saved)) == saved);
    } catch (Failure const& failure) {
        require(failure.number == static_cast<int>(Fault::file_too_short));
    }
    return 0;
}
