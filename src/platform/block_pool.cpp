#include "platform/block_pool.h"

#include <cstdlib>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace ruvenmark {

namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20U;

} // namespace

// A look-up in a million stations waits for the page's address as long as for the memory: large blocks ask for large
// pages, where the machine gives them.
void* TakeBlock(std::size_t size)
{
    const std::size_t alignment = size < kLargePage ? kBlockAlignment : kLargePage;
    const std::size_t whole = (size + alignment - 1) / alignment * alignment;
    void* block = std::aligned_alloc(alignment, whole);
    if (!block)
        throw std::bad_alloc();
#ifdef __linux__
    if (size >= kLargePage)
        madvise(block, whole, MADV_HUGEPAGE);
#endif
    return block;
}

void ReturnBlock(void* block)
{
    std::free(block);
}

} // namespace ruvenmark
