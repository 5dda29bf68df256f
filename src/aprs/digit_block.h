#pragma once

#include "aprs/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

// Several decimal digits at once, eight bytes of text in one number: figures of a packet have no fixed length, and a
// branch a digit is what reading them costs.
namespace ruvenmark::aprs {

// Eight bytes, the first in the lowest: a digit is its value, any other byte is more than 9.
class DigitBlock {
public:
    explicit DigitBlock(const char* text) : m_bytes(Load<std::uint64_t>(text) ^ kZeros) {}
    // Of seven bytes, with one that is no digit behind them.
    static DigitBlock OfSeven(const char* text)
    {
        return DigitBlock((Load<std::uint32_t>(text) | Load<std::uint32_t>(text + 3) << 24U) ^ kZeros);
    }

    static constexpr std::size_t kSize = 8;

    // How many digits stand in front, up to eight.
    std::size_t Count() const { return static_cast<std::size_t>(std::countr_zero(Others())) / 8; }
    // Whether at least so many do, one or more.
    bool Begins(std::size_t count) const { return Others() << (64 - 8 * count) == 0; }
    // Whether so many do, and no more; less than all. A branch on it costs less than the count, and what follows need
    // not wait for it.
    bool IsRunOf(std::size_t count) const { return Others() << (56 - 8 * count) == std::uint64_t{1} << 63U; }

    // The number that the first `count` bytes, digits all and one at least, stand for.
    std::uint32_t Value(std::size_t count) const { return Join(m_bytes << (64 - 8 * count)); }
    // The digits at one place and behind it, as a number of two or three. All bytes up to there must be digits.
    std::uint32_t Two(std::size_t at) const { return Byte(JoinPairs(m_bytes), at); }
    std::uint32_t Three(std::size_t at) const { return Byte(m_bytes, at) * 100 + Two(at + 1); }

    // The block with one byte made 0.
    DigitBlock Zeroed(std::size_t at) const { return DigitBlock(m_bytes & ~(std::uint64_t{0xFF} << (at * 8))); }

private:
    explicit DigitBlock(std::uint64_t bytes) : m_bytes(bytes) {}

    template <class Word>
    static std::uint64_t Load(const char* text)
    {
        Word word;
        std::memcpy(&word, text, sizeof(Word));
        if constexpr (std::endian::native == std::endian::big)
            return sizeof(Word) == kSize ? __builtin_bswap64(word)
                                         : __builtin_bswap32(static_cast<std::uint32_t>(word));
        return word;
    }

    static std::uint32_t Byte(std::uint64_t bytes, std::size_t at) { return bytes >> (8 * at) & 0xFFU; }

    // The highest bit of each byte that is no digit. A carry only reaches bytes behind the first of them.
    std::uint64_t Others() const { return ((m_bytes + kUpToNine) | m_bytes) & kHighBits; }

    // In each byte the number of two digits that begins there.
    static std::uint64_t JoinPairs(std::uint64_t digits) { return digits * 10 + (digits >> 8U); }
    // Pairs, then fours, then all eight.
    static std::uint32_t Join(std::uint64_t digits)
    {
        digits = JoinPairs(digits);
        digits = ((digits & 0x000000FF000000FFU) * (100 + (1000000ULL << 32U)) +
                  (digits >> 16U & 0x000000FF000000FFU) * (1 + (10000ULL << 32U))) >>
                 32U;
        return static_cast<std::uint32_t>(digits);
    }

    static constexpr std::uint64_t kZeros = 0x3030303030303030U;
    static constexpr std::uint64_t kUpToNine = 0x7676767676767676U;
    static constexpr std::uint64_t kHighBits = 0x8080808080808080U;

    std::uint64_t m_bytes;
};

// "ddd/sss" at the front of a text of at least seven bytes.
inline std::optional<std::array<std::uint16_t, 2>> ReadThreeAndThree(const char* text)
{
    constexpr std::size_t kSlash = 3;
    const DigitBlock digits = DigitBlock::OfSeven(text).Zeroed(kSlash);
    if (text[kSlash] != '/' || !digits.Begins(2 * kSlash + 1))
        return std::nullopt;
    return {{static_cast<std::uint16_t>(digits.Three(0)), static_cast<std::uint16_t>(digits.Three(kSlash + 1))}};
}

struct DigitRun {
    std::size_t count = 0;
    std::uint32_t value = 0;
};

// The digits in front of the text, `limit` at most, which is nine at most.
inline DigitRun ReadDigits(std::string_view text, std::size_t limit)
{
    if (text.size() >= DigitBlock::kSize) {
        const DigitBlock block(text.data());
        const std::size_t count = std::min(block.Count(), limit);
        if (count > 0 && count < DigitBlock::kSize)
            return {count, block.Value(count)};
    }
    DigitRun run;
    for (; run.count < std::min(text.size(), limit) && IsDigit(text[run.count]); ++run.count)
        run.value = run.value * 10 + static_cast<std::uint32_t>(DigitValue(text[run.count]));
    return run;
}

} // namespace ruvenmark::aprs
