#include "aprs/header.h"

#include "aprs/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kMaxCall = 9;
constexpr int kMaxSsid = 15;
constexpr std::size_t kHexAddress = 32; // IPv6 of a server, an element behind the q-construct.

constexpr std::array<bool, 256> MakeCallBytes()
{
    std::array<bool, 256> table{};
    for (std::size_t c = 0; c < table.size(); ++c) {
        const char byte = static_cast<char>(c);
        table[c] = IsAlnum(byte) || byte == '-';
    }
    return table;
}
constexpr std::array<bool, 256> kCallBytes = MakeCallBytes();

bool IsCallByte(char c)
{
    return kCallBytes[static_cast<unsigned char>(c)];
}

std::size_t CallLength(std::string_view text)
{
    std::size_t n = 0;
    while (n < text.size() && IsCallByte(text[n]))
        ++n;
    return n;
}

// What servers pass: an address of up to nine in any case ("UI-VIEW"), or "TCPIP*" of senders that begin with the path.
bool IsDestination(std::string_view dest)
{
    if (dest == "TCPIP*" || dest == "TCPXX*")
        return true;
    if (dest.empty() || dest.size() > kMaxCall || CallLength(dest) != dest.size())
        return false;
    const std::size_t dash = dest.find('-');
    if (dash == std::string_view::npos)
        return true;
    const std::string_view ssid = dest.substr(dash + 1);
    return dash > 0 && !ssid.empty() && (!AllDigits(ssid) || ParseDigits(ssid).value_or(kMaxSsid + 1) <= kMaxSsid);
}

bool IsHexAddress(std::string_view element)
{
    if (element.size() != kHexAddress)
        return false;
    for (const char c : element)
        if (HexValue(c) < 0)
            return false;
    return true;
}

// One element at the front of the path with its star; its size, or 0 where it is none.
std::size_t ElementSize(std::string_view path, bool bBehindQ)
{
    std::size_t n = CallLength(path);
    if (n == 0 || (n > kMaxCall && !(bBehindQ && IsHexAddress(path.substr(0, n)))))
        return 0;
    if (n < path.size() && path[n] == '*')
        ++n;
    return n == path.size() || path[n] == ',' ? n : 0;
}

bool IsPath(std::string_view path)
{
    bool bBehindQ = false;
    while (!path.empty()) {
        const std::size_t size = ElementSize(path, bBehindQ);
        if (size == 0)
            return path.find_first_not_of(',') == std::string_view::npos; // Empty elements may end it.
        bBehindQ = bBehindQ || (size == 3 && path[0] == 'q' && path[1] == 'A');
        path.remove_prefix(size == path.size() ? size : size + 1);
    }
    return true;
}

// Any header, byte by byte.
[[gnu::noinline]] Refusal ParseCarefully(std::string_view line, Header& header, std::string_view& info)
{
    const std::size_t source = CallLength(line.substr(0, kMaxCall + 1));
    if (source == 0 || source > kMaxCall || source == line.size() || line[source] != '>')
        return line.find(':') == std::string_view::npos ? Refusal::NoPayload : Refusal::BadSource;
    header.source = line.substr(0, source);
    const std::size_t colon = line.find(':', source + 1);
    if (colon == std::string_view::npos || colon + 1 == line.size())
        return Refusal::NoPayload;
    info = line.substr(colon + 1);
    const std::string_view rest = line.substr(source + 1, colon - source - 1);
    const std::size_t comma = rest.find(',');
    header.dest = rest.substr(0, comma);
    if (!IsDestination(header.dest))
        return Refusal::BadDestination;
    if (comma == std::string_view::npos)
        return Refusal::None;
    header.path = rest.substr(comma + 1);
    return IsPath(header.path) ? Refusal::None : Refusal::BadPath;
}

#ifdef __SSE2__

constexpr std::size_t kBlock = sizeof(__m128i);
constexpr std::size_t kUsual = 3 * kBlock;  // Shorter lines are few.
constexpr std::size_t kWindow = 4 * kBlock; // Where nearly every header ends before.

__m128i Equal(__m128i bytes, char c)
{
    return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c));
}

// All ones in each byte from `low` to `high`.
__m128i Between(__m128i bytes, char low, char high)
{
    constexpr char kMost = 0x7f;
    const __m128i raised = _mm_add_epi8(bytes, _mm_set1_epi8(static_cast<char>(kMost - high)));
    return _mm_cmpgt_epi8(raised, _mm_set1_epi8(static_cast<char>(kMost - high + low - 1)));
}

// One bit a byte of a line's front, the first byte in the lowest bit.
class Bits {
public:
    void Read(const char* text, std::size_t at)
    {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + at));
        const __m128i letters = Between(_mm_or_si128(bytes, _mm_set1_epi8(0x20)), 'a', 'z');
        const __m128i others = _mm_or_si128(Between(bytes, '0', '9'), Equal(bytes, '-'));
        Add(call, _mm_or_si128(letters, others), at);
        Add(comma, Equal(bytes, ','), at);
        Add(star, Equal(bytes, '*'), at);
    }

    std::uint64_t call = 0; // Letters, digits, dashes.
    std::uint64_t comma = 0, star = 0;

private:
    static void Add(std::uint64_t& bits, __m128i bytes, std::size_t at)
    {
        bits |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm_movemask_epi8(bytes))) << at;
    }
};

// Bits below the given one.
std::uint64_t Below(std::size_t bit)
{
    return (std::uint64_t{1} << bit) - 1;
}

// Where the run of bits that begins at the given one ends.
std::size_t EndOfRun(std::uint64_t bits, std::size_t begin)
{
    return begin + static_cast<std::size_t>(std::countr_one(bits >> begin));
}

// Whether bits hold a run of ten: an address longer than nine.
bool HasTooLong(std::uint64_t call)
{
    const std::uint64_t two = call & call >> 1U;
    const std::uint64_t four = two & two >> 2U;
    const std::uint64_t eight = four & four >> 4U;
    return (eight & two >> 8U) != 0;
}

// Of an address of usual length, with a block's bytes behind its begin.
bool HasDash(std::string_view address)
{
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(address.data()));
    return (static_cast<unsigned>(_mm_movemask_epi8(Equal(bytes, '-'))) & ((1U << address.size()) - 1)) != 0;
}

// Between its first comma and the colon: one comma between addresses, stars only behind them.
bool IsPlainPath(const Bits& bits, std::size_t comma, std::size_t colon)
{
    const std::uint64_t path = Below(colon) & ~Below(comma);
    const std::uint64_t star = bits.star & path;
    const std::uint64_t ends = (bits.comma & path) | std::uint64_t{1} << colon;
    return ((ends & ends << 1U) | (star & (ends << 1U | star << 1U)) | (star << 1U & ~ends)) == 0;
}

// The usual header, told without looking at its bytes one by one. What is unusual in any way is not told.
bool ParseQuickly(std::string_view line, Header& header, std::string_view& info)
{
    if (line.size() < kUsual)
        return false;
    const char* const text = line.data();
    Bits bits;
    for (std::size_t at = 0; at < kUsual; at += kBlock)
        bits.Read(text, at);
    // Always: guessing wrong whether it is needed costs more than it does. In a short line it lies over the others.
    bits.Read(text, std::min(kUsual, line.size() - kBlock));
    const std::size_t angle = EndOfRun(bits.call, 0);
    if (angle == 0 || angle + 1 >= kUsual || text[angle] != '>')
        return false;
    const std::size_t colon = EndOfRun(bits.call | bits.comma | bits.star, angle + 1);
    const std::size_t comma = EndOfRun(bits.call, angle + 1);
    if (colon + 1 >= line.size() || colon >= kWindow || text[colon] != ':' || comma == angle + 1 ||
        text[comma] == '*' || HasTooLong(bits.call & Below(colon)) || !IsPlainPath(bits, comma, colon))
        return false;
    const std::string_view dest(text + angle + 1, comma - angle - 1);
    if (HasDash(dest) && !IsDestination(dest))
        return false;
    header.source = {text, angle};
    header.dest = dest;
    header.path = comma == colon ? std::string_view() : std::string_view(text + comma + 1, colon - comma - 1);
    info = line.substr(colon + 1);
    return true;
}

#else

bool ParseQuickly(std::string_view, Header&, std::string_view&)
{
    return false;
}

#endif

} // namespace

Refusal ParseHeader(std::string_view line, Header& header, std::string_view& info)
{
    return ParseQuickly(line, header, info) ? Refusal::None : ParseCarefully(line, header, info);
}

} // namespace ruvenmark::aprs
