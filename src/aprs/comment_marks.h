#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Which of the bytes that something in a comment hangs on stand in it: one look at the text for all of them, since most
// comments hold nothing to be found.
namespace ruvenmark::aprs {

// One byte, so that it is handed on in a register.
struct CommentMarks {
    bool bEquals : 1 = false; // Altitude: /A=
    bool bBar : 1 = false;    // Telemetry: |...|
    bool bBang : 1 = false;   // Further digits: !Dxy!
    bool bBrace : 1 = false;  // Altitude of Mic-E: xyz}
    bool bReach : 1 = false;  // PHG: its G.

    bool Any() const { return bEquals || bBar || bBang || bBrace || bReach; }
};

#ifdef __SSE2__

// The first and the last bytes of a text that has at least as many.
template <class Word>
__m128i Ends(std::string_view text)
{
    Word first;
    Word last;
    std::memcpy(&first, text.data(), sizeof(Word));
    std::memcpy(&last, text.data() + text.size() - sizeof(Word), sizeof(Word));
    return _mm_set_epi64x(static_cast<std::int64_t>(first), static_cast<std::int64_t>(last));
}

inline CommentMarks FindMarks(std::string_view text)
{
    constexpr std::size_t kBlock = sizeof(__m128i);
    constexpr std::array<char, 5> kMarks = {'=', '|', '!', '}', 'G'};
    __m128i found[kMarks.size()] = {}; // No array: the type's alignment is lost as its argument.
    const auto look = [&](__m128i bytes) {
        for (std::size_t i = 0; i < kMarks.size(); ++i)
            found[i] = _mm_or_si128(found[i], _mm_cmpeq_epi8(bytes, _mm_set1_epi8(kMarks[i])));
    };
    const std::size_t size = text.size();
    const char* const data = text.data();
    const auto lookAt = [&](std::size_t at) { look(_mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at))); };
    if (size >= kBlock) {
        // Three blocks in any case, which is enough as a rule: what is no loop cannot be guessed wrong. The last one
        // lies over others, so that nothing behind the text is looked at.
        const std::size_t last = size - kBlock;
        lookAt(0);
        lookAt(std::min(kBlock, last));
        lookAt(last);
        for (std::size_t at = 2 * kBlock; at < last; at += kBlock)
            lookAt(at);
    } else if (size >= sizeof(std::uint64_t))
        look(Ends<std::uint64_t>(text));
    else if (size >= sizeof(std::uint32_t))
        look(Ends<std::uint32_t>(text));
    else
        for (const char c : text)
            look(_mm_set1_epi8(c));
    __m128i any = found[0];
    for (std::size_t i = 1; i < kMarks.size(); ++i)
        any = _mm_or_si128(any, found[i]);
    if (_mm_movemask_epi8(any) == 0)
        return {};
    const auto has = [&](std::size_t i) { return _mm_movemask_epi8(found[i]) != 0; };
    return {has(0), has(1), has(2), has(3), has(4)};
}

#else

inline CommentMarks FindMarks(std::string_view text)
{
    const auto has = [&](char c) { return text.find(c) != std::string_view::npos; };
    return {has('='), has('|'), has('!'), has('}'), has('G')};
}

#endif

} // namespace ruvenmark::aprs
