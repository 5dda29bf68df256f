#pragma once

#include <cstddef>
#include <cstdint>

namespace ruvenmark {

// Asks for memory that will be needed, so that several waits become one. A wrong guess does no harm.
inline void ExpectMemory(const void* start, std::size_t size)
{
#ifdef __GNUC__
    constexpr std::size_t kCacheLine = 64;
    const char* const bytes = static_cast<const char*>(start);
    const std::size_t intoLine = reinterpret_cast<std::uintptr_t>(start) % kCacheLine;
    for (std::size_t at = 0; at < intoLine + size; at += kCacheLine)
        __builtin_prefetch(bytes - intoLine + at);
#else
    static_cast<void>(start);
    static_cast<void>(size);
#endif
}

} // namespace ruvenmark
