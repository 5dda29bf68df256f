#include "devices/heard_packet.h"

#include "aprs/text.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::size_t kMaxCall = 9;
constexpr std::size_t kMaxMark = 40; // "<UI R Len=34>", "[06/02/18 13:47:54]"

struct Header {
    std::string text;      // "SOURCE>DEST,DIGIPEATERS:"
    std::string_view info; // What follows on the same line.
    bool bKind = false;    // The kind of frame is told,
    bool bUi = true;       // and is one that carries packets.
};

bool Skip(std::string_view& text, char c)
{
    if (!text.starts_with(c))
        return false;
    text.remove_prefix(1);
    return true;
}

void SkipBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

// A call off the front, empty where there is none, and behind it the number of a port, which no packet line has.
std::string_view TakeCall(std::string_view& text)
{
    std::size_t size = 0;
    while (size < text.size() && (aprs::IsAlnum(text[size]) || text[size] == '-'))
        ++size;
    const std::string_view call = size <= kMaxCall ? text.substr(0, size) : std::string_view();
    text.remove_prefix(call.size());
    if (!call.empty() && text.size() >= 2 && text[0] == '/' && aprs::IsDigit(text[1]))
        text.remove_prefix(2);
    return call;
}

// Source, destination and digipeaters off the front as they stand in a packet line; empty where these are none.
std::string TakeAddresses(std::string_view& text)
{
    std::string addresses(TakeCall(text));
    Skip(text, '*');
    if (addresses.empty() || !Skip(text, '>'))
        return {};
    char separator = '>';
    do {
        const std::string_view call = TakeCall(text);
        if (call.empty())
            return {};
        addresses.append(1, separator).append(call);
        if (Skip(text, '*') && separator == ',')
            addresses += '*';
        separator = ',';
    } while (Skip(text, ','));
    return addresses;
}

bool SkipTime(std::string_view& text)
{
    const std::size_t end = text.starts_with('[') ? text.substr(0, kMaxMark).find(']') : std::string_view::npos;
    if (end == std::string_view::npos)
        return false;
    text.remove_prefix(end + 1);
    return true;
}

// "<UI>:", "<<UI>>:", "<UI R Len=34>:"; what is in it without the brackets.
std::optional<std::string_view> TakeKind(std::string_view& text)
{
    const std::size_t end = text.starts_with('<') ? text.substr(0, kMaxMark).find(">:") : std::string_view::npos;
    if (end == std::string_view::npos)
        return std::nullopt;
    std::string_view kind = text.substr(0, end);
    kind.remove_prefix(kind.starts_with("<<") ? 2 : 1);
    text.remove_prefix(end + 2);
    return kind;
}

std::optional<Header> ReadHeader(std::string_view line)
{
    Header header;
    header.text = TakeAddresses(line);
    if (header.text.empty())
        return std::nullopt;
    header.text += ':';
    SkipBlanks(line);
    if (SkipTime(line))
        SkipBlanks(line);
    const bool bColon = Skip(line, ':');
    std::string_view behind = line;
    SkipBlanks(behind);
    // Right behind the colon stands the information, which may begin with a bracket of its own.
    const bool bMayBeKind = !bColon || behind.size() < line.size();
    const auto kind = bMayBeKind ? TakeKind(behind) : std::nullopt;
    if (!bColon && !kind)
        return std::nullopt;
    header.bKind = kind.has_value();
    header.bUi = !kind || kind->starts_with("UI");
    header.info = kind ? behind : line;
    return header;
}

} // namespace

std::optional<std::string> HeardPackets::Take(std::string_view line)
{
    if (IsWaiting() && line.empty()) {
        m_bMayBeEmpty = true;
        return std::nullopt;
    }
    if (IsWaiting() && !(m_bMayBeEmpty && ReadHeader(line))) {
        std::string packet = m_header.append(line);
        m_header.clear();
        return packet;
    }
    m_header.clear();
    const auto header = ReadHeader(line);
    if (!header || !header->bUi)
        return std::nullopt;
    if (!header->info.empty())
        return header->text + std::string(header->info);
    m_header = header->text;
    m_bMayBeEmpty = !header->bKind;
    return std::nullopt;
}

} // namespace ruvenmark
