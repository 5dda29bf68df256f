#pragma once

#include <cstddef>

namespace ruvenmark {

// Asks for memory that will be needed, so that several waits become one. A wrong guess does no harm.
inline void ExpectMemory(const void* start, std::size_t size)
{
#ifdef __GNUC__
    constexpr std::size_t kCacheLine = 64;
    for (std::size_t at = 0; at < size; at += kCacheLine)
        __builtin_prefetch(static_cast<const char*>(start) + at);
#else
    static_cast<void>(start);
    static_cast<void>(size);
#endif
}

} // namespace ruvenmark
