#include "aprs/header.h"

#include "aprs/header_bits.h"
#include "aprs/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

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
[[gnu::noinline]] std::string_view ParseCarefully(std::string_view line, Header& header, Refusal& refusal)
{
    const std::size_t source = CallLength(line.substr(0, kMaxCall + 1));
    if (source == 0 || source > kMaxCall || source == line.size() || line[source] != '>') {
        refusal = line.find(':') == std::string_view::npos ? Refusal::NoPayload : Refusal::BadSource;
        return {};
    }
    header.source = line.substr(0, source);
    const std::size_t colon = line.find(':', source + 1);
    if (colon == std::string_view::npos || colon + 1 == line.size()) {
        refusal = Refusal::NoPayload;
        return {};
    }
    const std::string_view rest = line.substr(source + 1, colon - source - 1);
    const std::size_t comma = rest.find(',');
    header.dest = rest.substr(0, comma);
    if (!IsDestination(header.dest)) {
        refusal = Refusal::BadDestination;
    } else if (comma != std::string_view::npos) {
        header.path = rest.substr(comma + 1);
        refusal = IsPath(header.path) ? Refusal::None : Refusal::BadPath;
    }
    return line.substr(colon + 1);
}

#ifdef RUVENMARK_HEADER_BITS

std::uint64_t Lowest(std::uint64_t bits)
{
    return bits & (0 - bits);
}
// All bits up to the lowest of those given, with it.
std::uint64_t UpToFirst(std::uint64_t bits)
{
    return bits ^ (bits - 1);
}

// Whether bits hold a run of ten: an address longer than nine.
bool HasTooLong(std::uint64_t call)
{
    const std::uint64_t two = call & call >> 1U;
    const std::uint64_t four = two & two >> 2U;
    const std::uint64_t eight = four & four >> 4U;
    return (eight & two >> 8U) != 0;
}

std::size_t First(std::uint64_t bits)
{
    return static_cast<std::size_t>(std::countr_zero(bits));
}

// For a destination with a dash, which may be wrong: the header is known up to here.
[[gnu::noinline]] std::string_view CheckDest(Header& header, Refusal& refusal, std::string_view info)
{
    if (!IsDestination(header.dest)) {
        refusal = Refusal::BadDestination;
        header.path = {};
    }
    return info;
}

// The usual header, told without looking at its bytes one by one. Where the colon stands does not hang on the rest:
// what follows waits for it. No call but a last one, so that nothing need be kept on the stack.
[[gnu::always_inline]] inline std::string_view ParseByBits(std::string_view line, const HeaderBits& bits,
                                                           Header& header, Refusal& refusal)
{
    const char* const text = line.data();
    const std::uint64_t front = UpToFirst(bits.colon);
    const std::uint64_t ends = ~bits.call & front; // Of all elements.
    const std::uint64_t angle = Lowest(ends);
    const std::uint64_t star = bits.star & front;
    const std::uint64_t separators = (bits.comma & front) | Lowest(bits.colon);
    const std::uint64_t dest = UpToFirst(separators) & ~UpToFirst(angle);
    // Elements have bytes, stars stand at their ends only, but not at that of the destination.
    const std::uint64_t wrong = (ends ^ (angle | separators | star)) | ((ends & ends << 1U) ^ star << 1U) |
                                (star & (star << 1U | dest)) | (ends & 1U);
    const std::size_t sourceSize = First(ends);
    const std::size_t colon = First(bits.colon);
    if (bits.colon == 0 || text[sourceSize] != '>' || wrong != 0 || HasTooLong(bits.call & front) ||
        colon + 1 >= line.size())
        return ParseCarefully(line, header, refusal);
    const std::size_t destEnd = First(separators);
    header.source = {text, sourceSize};
    header.dest = {text + sourceSize + 1, destEnd - sourceSize - 1};
    header.path = destEnd == colon ? std::string_view() : std::string_view(text + destEnd + 1, colon - destEnd - 1);
    const std::string_view info(text + colon + 1, line.size() - colon - 1);
    return (bits.dash & dest) == 0 ? info : CheckDest(header, refusal, info);
}

RUVENMARK_WIDE std::string_view ParseWide(std::string_view line, Header& header, Refusal& refusal)
{
    return ParseByBits(line, ReadWide(line.data(), line.size()), header, refusal);
}

[[gnu::noinline]] std::string_view ParseNarrow(std::string_view line, Header& header, Refusal& refusal)
{
    return ParseByBits(line, ReadNarrow(line.data(), line.size()), header, refusal);
}

#endif

} // namespace

std::string_view ParseHeader(std::string_view line, Header& header, Refusal& refusal)
{
#ifdef RUVENMARK_HEADER_BITS
    if (line.size() >= WideBlock::kSize && HasWideBlocks())
        return ParseWide(line, header, refusal);
    if (line.size() >= kLeastNarrow)
        return ParseNarrow(line, header, refusal);
#endif
    return ParseCarefully(line, header, refusal);
}

} // namespace ruvenmark::aprs
