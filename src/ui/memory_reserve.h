// Memory that is set aside for the moment when there is none left.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <new>

namespace warhost {

/// Freed when an allocation fails, so that the step that failed can run once more and the user can be told.
class MemoryReserve {
public:
    MemoryReserve() noexcept { fill(); }

    /// Sets the memory aside again, where there is enough.
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
