// Memory kept in reserve for when an allocation fails.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <new>

namespace warhost {

/// Freed when an allocation fails, so that the failed step can run once more and an error can be shown.
class MemoryReserve {
public:
    MemoryReserve() noexcept { fill(); }

    /// Allocates the reserve again if there is enough memory.
    void fill() noexcept
    {
        if (!block_) block_.reset(new (std::nothrow) Block);
    }

    void free() noexcept { block_.reset(); }

private:
    using Block = std::array<char, std::size_t{256} * 1024>;

    std::unique_ptr<Block> block_;
};

} // namespace warhost
