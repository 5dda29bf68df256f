#include "aprs/decode.h"

#include "aprs/header.h"
#include "aprs/locator.h"
#include "aprs/message.h"
#include "aprs/mic_e.h"
#include "aprs/nmea.h"
#include "aprs/object.h"
#include "aprs/position_report.h"
#include "aprs/status.h"
#include "aprs/telemetry.h"
#include "aprs/text.h"
#include "aprs/ultimeter.h"
#include "aprs/weather.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kLateBang = 40; // A position may begin with a '!' among so many first bytes.
constexpr std::string_view kUltimeter = "$ULTW";
constexpr std::string_view kLogging = "!!"; // Of the same stations.

// Both kinds of positions without time on one way: which one it is cannot be guessed.
Refusal DecodePosition(std::string_view rest, Packet& packet)
{
    if (packet.info.starts_with(kLogging))
        return ParseUltimeterLogging(rest.substr(1), packet.body.emplace<WeatherReport>());
    return ParsePositionReport(rest, packet.body.emplace<PositionReport>());
}

Refusal DecodeDollar(Packet& packet)
{
    if (packet.info.starts_with(kUltimeter))
        return ParseUltimeterPacket(packet.info.substr(kUltimeter.size()), packet.body.emplace<WeatherReport>());
    return ParseNmea(packet.info, packet.header.dest, packet.body.emplace<PositionReport>());
}

Refusal DecodeStatus(std::string_view rest, Packet& packet)
{
    ParseStatus(rest, packet.body.emplace<StatusReport>());
    return Refusal::None;
}

// Kinds that are their own text and mean nothing without one.
template <class Kind>
Refusal DecodeText(std::string_view rest, Packet& packet)
{
    const std::string_view text = Trim(rest);
    packet.body = Kind{text};
    return text.empty() ? Refusal::NothingInside : Refusal::None;
}

Refusal DecodeUserDefined(std::string_view rest, Packet& packet)
{
    if (rest.size() < 2)
        return Refusal::NothingInside;
    packet.body = UserDefined{rest.substr(0, 2), rest.substr(2)};
    return Refusal::None;
}

// Text in front of a position, as some digipeaters send it.
Refusal DecodeLateBang(Packet& packet)
{
    const std::size_t bang = packet.info.substr(0, kLateBang).find('!');
    if (bang == std::string_view::npos)
        return Refusal::UnknownType;
    auto& report = packet.body.emplace<PositionReport>();
    const Refusal refusal = ParsePositionReport(packet.info.substr(bang + 1), report);
    return refusal == Refusal::None ? Refusal::None : Refusal::UnknownType;
}

Refusal DecodePacket(std::string_view line, Packet& packet);

// The packet inside counts, under its own sender; the outer header only tells who relayed it.
Refusal DecodeThirdParty(std::string_view rest, Packet& packet)
{
    if (packet.relay)
        return Refusal::NestedThirdParty;
    packet.relay = packet.header;
    packet.header = {};
    return DecodePacket(rest, packet);
}

Refusal DecodeInfo(Packet& packet)
{
    const std::string_view rest = packet.info.substr(1);
    switch (packet.info.front()) {
    case '!':
    case '=':
        return DecodePosition(rest, packet);
    case '/':
    case '@':
        return ParseTimedPosition(rest, packet.body.emplace<PositionReport>());
    case '`':
    case '\'':
    case 0x1c:
    case 0x1d:
        return ParseMicE(packet.header.dest, rest, packet.body.emplace<PositionReport>());
    case ';':
        return ParseObject(rest, packet.body.emplace<ObjectReport>());
    case ')':
        return ParseItem(rest, packet.body.emplace<ObjectReport>());
    case ':':
        return ParseMessage(rest, packet.body.emplace<Message>());
    case '>':
        return DecodeStatus(rest, packet);
    case '_':
        return ParsePositionlessWeather(rest, packet.body.emplace<WeatherReport>());
    case '$':
        return DecodeDollar(packet);
    case '<':
        return DecodeText<Capabilities>(rest, packet);
    case '?':
        return DecodeText<Query>(rest, packet);
    case ',':
        return DecodeText<TestData>(rest, packet);
    case '{':
        return DecodeUserDefined(rest, packet);
    case '[':
        return ParseGridBeacon(rest, packet.body.emplace<GridBeacon>());
    case '}':
        return DecodeThirdParty(rest, packet);
    case '#':
    case '*':
        return DecodeLateBang(packet) == Refusal::None ? Refusal::None : Refusal::RawWeather;
    case 'T':
        if (rest.starts_with('#'))
            return ParseTelemetry(rest.substr(1), packet.body.emplace<Telemetry>());
        break;
    default:
        break;
    }
    return DecodeLateBang(packet);
}

Refusal DecodePacket(std::string_view line, Packet& packet)
{
    Refusal refusal = Refusal::None;
    const std::string_view info = ParseHeader(line, packet.header, refusal);
    if (!info.empty())
        packet.info = info;
    return refusal == Refusal::None ? DecodeInfo(packet) : refusal;
}

std::string_view WithoutLineEnd(std::string_view line)
{
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace

Packet Decode(std::string_view line)
{
    Packet packet(WithoutLineEnd(line));
    if (packet.line.empty())
        packet.refusal = Refusal::EmptyLine;
    else if (packet.line.size() > kMaxLine)
        packet.refusal = Refusal::LineTooLong;
    else if (packet.line.front() == '#')
        packet.refusal = Refusal::ServerComment;
    else
        packet.refusal = DecodePacket(packet.line, packet);
    if (!packet.IsDecoded())
        packet.body.emplace<std::monostate>();
    return packet;
}

} // namespace ruvenmark::aprs
