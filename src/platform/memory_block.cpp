#include "platform/memory_block.h"

#include <cstdlib>
#include <new>

#ifdef __linux__
#include <cstdint>
#include <sys/mman.h>
#endif

namespace ruvenmark {

namespace {

std::size_t RoundedUp(std::size_t size, std::size_t unit)
{
    return (size + unit - 1) / unit * unit;
}

void* TakeAligned(std::size_t size, std::size_t alignment)
{
    void* block = std::aligned_alloc(alignment, RoundedUp(size, alignment));
    if (!block)
        throw std::bad_alloc();
    return block;
}

#ifdef __linux__

// The system maps at small pages' bounds: more is asked for than needed, and what stands over on both sides returned.
void* TakeLargePages(std::size_t size)
{
    const std::size_t whole = size + kLargePage;
    void* mapped = ::mmap(nullptr, whole, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        throw std::bad_alloc();
    char* const begin = static_cast<char*>(mapped);
    const std::size_t ahead =
        RoundedUp(reinterpret_cast<std::uintptr_t>(begin), kLargePage) - reinterpret_cast<std::uintptr_t>(begin);
    char* const block = begin + ahead;
    if (ahead > 0)
        ::munmap(begin, ahead);
    if (ahead < kLargePage)
        ::munmap(block + size, kLargePage - ahead);
    ::madvise(block, size, MADV_HUGEPAGE); // A wish: small pages do as well.
    return block;
}

#endif

} // namespace

void* TakeBlock(std::size_t size)
{
#ifdef __linux__
    if (size >= kLargePage)
        return TakeLargePages(RoundedUp(size, kLargePage));
#endif
    return TakeAligned(size, kBlockAlignment);
}

void ReturnBlock(void* block, std::size_t size)
{
#ifdef __linux__
    if (size >= kLargePage) {
        ::munmap(block, RoundedUp(size, kLargePage));
        return;
    }
#else
    static_cast<void>(size);
#endif
    std::free(block);
}

} // namespace ruvenmark
