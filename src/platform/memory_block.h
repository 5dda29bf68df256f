#pragma once

#include <cstddef>

namespace ruvenmark {

// Memory for many values, at the start of a cache line. Raises std::bad_alloc.
inline constexpr std::size_t kBlockAlignment = 64;
void* TakeBlock(std::size_t size);
void ReturnBlock(void* block, std::size_t size);

// Blocks of this size, or of a multiple, lie in large pages where the machine gives them: a look-up among millions
// waits for a page's address as long as for the memory.
inline constexpr std::size_t kLargePage = std::size_t{2} << 20U;

// Blocks for the containers of the standard library.
template <typename Value>
struct BlockAllocator {
    using value_type = Value;

    BlockAllocator() = default;
    template <typename Other>
    BlockAllocator(const BlockAllocator<Other>& /*other*/)
    {
    }
    Value* allocate(std::size_t count) { return static_cast<Value*>(TakeBlock(count * sizeof(Value))); }
    void deallocate(Value* values, std::size_t count) { ReturnBlock(values, count * sizeof(Value)); }
    friend bool operator==(const BlockAllocator&, const BlockAllocator&) { return true; }
};

} // namespace ruvenmark
