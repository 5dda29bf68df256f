#include "aprs/decode.h"
#include "packet_mix.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

} // namespace

// Not inlined: the compiler would take the pairs below for mismatched ones.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++allocations;
    if (void* const block = std::malloc(size == 0 ? 1 : size))
        return block;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* block) noexcept
{
    std::free(block);
}

[[gnu::noinline]] void operator delete(void* block, std::size_t /*size*/) noexcept
{
    std::free(block);
}

namespace ruvenmark::aprs {
namespace {

TEST(Allocation, DecodingTakesNoMemory)
{
    auto lines = MakePacketMix(3000, 3);
    lines.push_back("N0AAA>APRS42:!4903.50N/07201.75W-a/A=000100b|ss1122|c!W12!d");
    lines.push_back("N0GATE>APRS42:}N0BBB>APRS42,TCPIP,N0GATE*:$GPGLL,4916.45,N,12311.12,W,225444,A");
    std::size_t decoded = 0;
    const std::size_t before = allocations;
    for (const std::string& line : lines)
        decoded += Decode(line).IsDecoded() ? 1U : 0U;
    EXPECT_EQ(allocations, before);
    EXPECT_GT(decoded, 2900U);
}

} // namespace
} // namespace ruvenmark::aprs
