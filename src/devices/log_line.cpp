#include "devices/log_line.h"

#include "aprs/text.h"

#include <algorithm>

namespace ruvenmark {

namespace {

using aprs::HexValue;
using aprs::IsDigit;
using aprs::IsUpper;

constexpr std::size_t kMaxCall = 9;
constexpr int kMaxWords = 4;            // Date, clock, zone or port, direction.
constexpr std::size_t kMaxBracket = 32; // "[2023-12-24 12:07:19]", "[0.3]", "[ig]"
constexpr std::size_t kEpochSize = 10;  // Seconds since 1970.
constexpr std::size_t kMaxZone = 5;
constexpr std::size_t kMaxHead = 64; // Bytes of a stamp and the call behind it.
constexpr std::string_view kEscape = "<0x";
constexpr std::size_t kEscapeSize = 6; // <0x1c>

bool IsCallByte(char c)
{
    return aprs::IsAlnum(c) || c == '-';
}

bool StartsPacket(std::string_view text)
{
    std::size_t n = 0;
    while (n < text.size() && n <= kMaxCall && IsCallByte(text[n]))
        ++n;
    return n > 0 && n <= kMaxCall && n < text.size() && text[n] == '>';
}

// Date, clock or both in one, or seconds: figures with signs between them.
bool IsStamp(std::string_view word)
{
    if (word.ends_with(':') || word.ends_with('Z'))
        word.remove_suffix(1);
    if (word.size() < 5 || !IsDigit(word.front()) || !IsDigit(word.back()))
        return false;
    bool bSigns = false;
    for (const char c : word) {
        if (!IsDigit(c) && c != ':' && c != '-' && c != '/' && c != '.' && c != ',' && c != 'T' && c != '+')
            return false;
        bSigns = bSigns || !IsDigit(c);
    }
    return bSigns || word.size() == kEpochSize;
}

// A zone with its colon ("UTC:"), the call of a port, or whether it was received or sent ("R", "T").
bool IsStampEnd(std::string_view word)
{
    if (word.ends_with(':')) {
        word.remove_suffix(1);
        return word.size() <= kMaxZone && std::all_of(word.begin(), word.end(), IsUpper);
    }
    return word.size() <= kMaxCall &&
           std::all_of(word.begin(), word.end(), [](char c) { return IsUpper(c) || IsDigit(c) || c == '-'; });
}

std::string_view BehindBracket(std::string_view text)
{
    const std::size_t end = text.starts_with('[') ? text.substr(0, kMaxBracket).find(']') : std::string_view::npos;
    return end == std::string_view::npos ? text : aprs::TrimLeft(text.substr(end + 1));
}

// The packet behind a stamp; the whole line where there is none in front.
std::string_view BehindStamp(std::string_view line)
{
    std::string_view rest = BehindBracket(line);
    bool bStamp = rest.size() < line.size();
    for (int words = 0; words <= kMaxWords && !rest.empty(); ++words) {
        if (bStamp && StartsPacket(rest))
            return rest;
        const std::string_view word = rest.substr(0, rest.find(' '));
        if (word.size() == rest.size() || (!IsStamp(word) && !(bStamp && IsStampEnd(word))))
            break;
        bStamp = true;
        rest = BehindBracket(aprs::TrimLeft(rest.substr(word.size())));
    }
    return line;
}

bool IsEscape(std::string_view text)
{
    return text.size() >= kEscapeSize && text.starts_with(kEscape) && HexValue(text[3]) >= 0 &&
           HexValue(text[4]) >= 0 && text[5] == '>';
}

} // namespace

std::string_view LikelyCall(std::string_view line)
{
    const std::string_view head = line.substr(0, kMaxHead);
    const std::size_t end = std::min(head.find('>'), head.size());
    std::size_t begin = end;
    while (begin > 0 && IsCallByte(head[begin - 1]))
        --begin;
    return head.substr(begin, end - begin);
}

LogLine::LogLine(std::string_view line) : m_packet(StartsPacket(line) ? line : BehindStamp(line))
{
    m_stamp = aprs::TrimRight(line.substr(0, line.size() - m_packet.size()));
    if (m_packet.find(kEscape) == std::string_view::npos)
        return;
    std::size_t size = 0;
    for (std::size_t at = 0; at < m_packet.size(); ++size) {
        if (size == m_bytes.size())
            return; // No packet is that long: the line is refused as it stands.
        const bool bEscape = IsEscape(m_packet.substr(at));
        m_bytes[size] =
            bEscape ? static_cast<char>(HexValue(m_packet[at + 3]) * 16 + HexValue(m_packet[at + 4])) : m_packet[at];
        at += bEscape ? kEscapeSize : 1;
    }
    m_packet = {m_bytes.data(), size};
}

} // namespace ruvenmark
