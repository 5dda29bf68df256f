#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Which of the bytes that something in a comment hangs on stand in it: one look at the text for all of them, since most
// comments hold nothing to be found.
namespace ruvenmark::aprs {

// Bits of one byte, so that they are handed on in a register.
enum CommentMarks : std::uint8_t {
    NoMarks = 0,
    EqualsMark = 1, // Altitude: /A=
    BarMark = 2,    // Telemetry: |...|
    BangMark = 4,   // Further digits: !Dxy!
    BraceMark = 8,  // Altitude of Mic-E: xyz}
    ReachMark = 16, // PHG: its HG. A G alone stands in every fifth comment.
};

inline constexpr std::size_t kLeastMarked = 4; // Bytes of the shortest thing that is found: xyz}

#ifdef __SSE2__

// The marks in some blocks of a text.
class FoundMarks {
public:
    // The block at this place, which may not be the first of its line.
    void Look(const char* at)
    {
        const __m128i bytes = Load(at);
        m_equals = _mm_or_si128(m_equals, Equal(bytes, '='));
        m_bar = _mm_or_si128(m_bar, Equal(bytes, '|'));
        m_bang = _mm_or_si128(m_bang, Equal(bytes, '!'));
        m_brace = _mm_or_si128(m_brace, Equal(bytes, '}'));
        m_reach = _mm_or_si128(m_reach, _mm_and_si128(Equal(bytes, 'G'), Equal(Load(at - 1), 'H')));
    }
    // Braces mean nothing but in Mic-E, though there are many.
    CommentMarks Marks(bool bMicE) const
    {
        const __m128i others = _mm_or_si128(_mm_or_si128(m_equals, m_bar), _mm_or_si128(m_bang, m_reach));
        const unsigned brace = Holds(m_brace) & unsigned{bMicE};
        if ((Holds(others) | brace) == 0)
            return NoMarks;
        return static_cast<CommentMarks>(Holds(m_equals) * EqualsMark | Holds(m_bar) * BarMark |
                                         Holds(m_bang) * BangMark | brace * BraceMark | Holds(m_reach) * ReachMark);
    }

private:
    static __m128i Load(const char* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }
    static __m128i Equal(__m128i bytes, char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); }
    static unsigned Holds(__m128i found) { return _mm_movemask_epi8(found) != 0 ? 1 : 0; }

    __m128i m_equals{}, m_bar{}, m_bang{}, m_brace{}, m_reach{};
};

// Of a text that has more than a block of its line in front: what is found there costs time only.
inline CommentMarks FindMarks(std::string_view text, bool bMicE)
{
    constexpr std::size_t kBlock = sizeof(__m128i);
    if (text.size() < kLeastMarked)
        return NoMarks;
    FoundMarks found;
    const char* const last = text.data() + text.size() - kBlock;
    found.Look(last);
    if (text.size() > kBlock) {
        // Three blocks in any case, which is enough as a rule: what is no loop cannot be guessed wrong.
        found.Look(text.data());
        found.Look(std::min(text.data() + kBlock, last));
        for (const char* at = text.data() + 2 * kBlock; at < last; at += kBlock)
            found.Look(at);
    }
    return found.Marks(bMicE);
}

#else

inline CommentMarks FindMarks(std::string_view text, bool bMicE)
{
    const auto has = [&](std::string_view mark) { return text.find(mark) != std::string_view::npos; };
    return static_cast<CommentMarks>(has("=") * EqualsMark | has("|") * BarMark | has("!") * BangMark |
                                     (bMicE && has("}")) * BraceMark | has("HG") * ReachMark);
}

#endif

} // namespace ruvenmark::aprs
