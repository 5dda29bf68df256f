#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#if defined(__GNUC__) && defined(__SSE2__)
#define RUVENMARK_HEADER_BITS
#include <immintrin.h>
#endif

// Where the bytes that a header is made of stand in the front of a line: one bit a byte, the first byte in the lowest.
namespace ruvenmark::aprs {

struct HeaderBits {
    std::uint64_t call = 0; // Letters, digits, dashes.
    std::uint64_t comma = 0, star = 0, colon = 0;
    std::uint64_t dash = 0; // Among the first bytes, where the destination is.
};

#ifdef RUVENMARK_HEADER_BITS

// By the registers that every processor has.
class NarrowBlock {
public:
    static constexpr std::size_t kSize = sizeof(__m128i);

    explicit NarrowBlock(const char* text) : m_bytes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(text))) {}

    void Add(std::size_t at, HeaderBits& bits) const
    {
        const __m128i letters = Between(_mm_or_si128(m_bytes, _mm_set1_epi8(kSmall)), 'a', 'z');
        const __m128i others = _mm_or_si128(Between(m_bytes, '0', '9'), Equal('-'));
        bits.call |= Mask(_mm_or_si128(letters, others)) << at;
        bits.comma |= Mask(Equal(',')) << at;
        bits.star |= Mask(Equal('*')) << at;
        bits.colon |= Mask(Equal(':')) << at;
    }
    std::uint64_t Dashes() const { return Mask(Equal('-')); }

private:
    static constexpr char kSmall = 0x20; // Makes capital letters small.

    __m128i Equal(char c) const { return _mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(c)); }
    // All ones in each byte from `low` to `high`.
    static __m128i Between(__m128i bytes, char low, char high)
    {
        constexpr char kMost = 0x7f;
        const __m128i raised = _mm_add_epi8(bytes, _mm_set1_epi8(static_cast<char>(kMost - high)));
        return _mm_cmpgt_epi8(raised, _mm_set1_epi8(static_cast<char>(kMost - high + low - 1)));
    }
    static std::uint64_t Mask(__m128i bytes) { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes)); }

    __m128i m_bytes;
};

inline constexpr std::size_t kLeastNarrow = 3 * NarrowBlock::kSize;

// Of a line of at least the least size. In a short one the last block lies over the others.
inline HeaderBits ReadNarrow(const char* text, std::size_t size)
{
    HeaderBits bits;
    for (std::size_t at = 0; at < kLeastNarrow; at += NarrowBlock::kSize)
        NarrowBlock(text + at).Add(at, bits);
    const std::size_t last = std::min(kLeastNarrow, size - NarrowBlock::kSize);
    NarrowBlock(text + last).Add(last, bits);
    bits.dash = NarrowBlock(text).Dashes() | NarrowBlock(text + NarrowBlock::kSize).Dashes() << NarrowBlock::kSize;
    return bits;
}

// What a byte is, told by its two halves: each names the kinds that it may belong to, and they agree on one at most.
// Those of addresses come last.
enum HeaderKind : std::uint8_t { Colon = 1, Star = 2, Comma = 4, Dash = 8, Digit = 16, ToO = 32, FromP = 64 };

constexpr std::uint8_t KindsOfLowHalf(unsigned low)
{
    return static_cast<std::uint8_t>((low == 0xA ? Colon | Star : 0) | (low == 0xC ? Comma : 0) |
                                     (low == 0xD ? Dash : 0) | (low <= 9 ? Digit : 0) | (low >= 1 ? ToO : 0) |
                                     (low <= 0xA ? FromP : 0));
}
constexpr std::uint8_t KindsOfHighHalf(unsigned high)
{
    constexpr std::array<std::uint8_t, 8> kKinds = {0, 0, Star | Comma | Dash, Digit | Colon, ToO, FromP, ToO, FromP};
    return high < kKinds.size() ? kKinds[high] : std::uint8_t{0};
}

// Twice, since each half of a wide register looks up for itself.
constexpr auto MakeKinds(std::uint8_t (*of)(unsigned))
{
    std::array<std::uint8_t, 32> kinds{};
    for (unsigned i = 0; i < kinds.size(); ++i)
        kinds[i] = of(i % 16);
    return kinds;
}
inline constexpr auto kLowHalves = MakeKinds(KindsOfLowHalf);
inline constexpr auto kHighHalves = MakeKinds(KindsOfHighHalf);

// For functions that only run where HasWideBlocks says so.
#define RUVENMARK_WIDE [[gnu::target("avx2,bmi,bmi2")]]

inline bool HasWideBlocks()
{
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
}

// By twice as wide registers: a quarter less for the whole header.
class WideBlock {
public:
    static constexpr std::size_t kSize = sizeof(__m256i);

    RUVENMARK_WIDE explicit WideBlock(const char* text) : m_bytes(Load(text)) {}

    RUVENMARK_WIDE void Add(std::size_t at, HeaderBits& bits) const
    {
        const __m256i high = _mm256_and_si256(_mm256_srli_epi16(m_bytes, 4), _mm256_set1_epi8(0x0f));
        const __m256i kinds = _mm256_and_si256(_mm256_shuffle_epi8(Load(kLowHalves.data()), m_bytes),
                                               _mm256_shuffle_epi8(Load(kHighHalves.data()), high));
        bits.call |= Mask(_mm256_cmpgt_epi8(kinds, _mm256_set1_epi8(Dash - 1))) << at;
        bits.comma |= Mask(_mm256_slli_epi16(kinds, 5)) << at;
        bits.star |= Mask(_mm256_slli_epi16(kinds, 6)) << at;
        bits.colon |= Mask(_mm256_slli_epi16(kinds, 7)) << at;
    }
    RUVENMARK_WIDE std::uint64_t Dashes() const { return Mask(_mm256_cmpeq_epi8(m_bytes, _mm256_set1_epi8('-'))); }

private:
    RUVENMARK_WIDE static __m256i Load(const void* bytes)
    {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes));
    }
    // The highest bit of each byte.
    RUVENMARK_WIDE static std::uint64_t Mask(__m256i bytes)
    {
        return static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes));
    }

    __m256i m_bytes;
};

// Of a line of at least one block.
RUVENMARK_WIDE inline HeaderBits ReadWide(const char* text, std::size_t size)
{
    HeaderBits bits;
    const WideBlock front(text);
    front.Add(0, bits);
    const std::size_t last = std::min(WideBlock::kSize, size - WideBlock::kSize);
    WideBlock(text + last).Add(last, bits);
    bits.dash = front.Dashes();
    return bits;
}

#endif

} // namespace ruvenmark::aprs
