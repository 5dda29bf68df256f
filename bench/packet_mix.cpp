#include "packet_mix.h"

#include "packet_text.h"

#include <array>
#include <random>
#include <string_view>

namespace ruvenmark {

namespace {

using namespace packet_text;

constexpr auto kComments = std::to_array<std::string_view>({
    "",
    "",
    "146.520MHz listening on the way home",
    "Digi and gate, fill-in, 433.900 MHz T088 -060",
    "73 de a quiet valley {TRK32}",
    " 13.8V 21C HDOP01.1 SATS09",
    "http://club.example.net",
    "Gruesse aus dem S\xc3\xbc"
    "den",
});
constexpr auto kPaths = std::to_array<std::string_view>({
    "WIDE1-1,WIDE2-1,qAR,N0GATE-10",
    "TCPIP*,qAC,T2NORTH",
    "N0DIG-3,WIDE1*,WIDE2-1,qAo,N0GATE",
    "N0DIG-3*,N0HILL-1*,WIDE2*,qAR,N0GATE-5",
    "TCPIP*,qAS,N0GATE-10",
    "RELAY,WIDE3-3,qAR,N0GATE-2",
});
constexpr auto kSymbols = std::to_array<std::string_view>({"/>", "/-", "/k", "/#", "I&", "/[", "/u", "\\>", "/v"});

class Mixer {
public:
    explicit Mixer(std::uint32_t seed) : m_engine(seed) {}

    std::string Line();

private:
    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(limit)); }
    template <class List>
    std::string_view Pick(const List& list)
    {
        return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
    }

    std::string Call();
    Place AnyPlace() { return {Below(130000) / 1000.0 - 60.0, Below(350000) / 1000.0 - 175.0}; }
    Movement AnyMovement() { return {Below(360) + 1, Below(70)}; }
    std::string Time() { return Digits(Below(28) + 1, 2) + Digits(Below(24), 2) + Digits(Below(60), 2) + 'z'; }
    std::string Head(std::string_view dest)
    {
        return Call() + '>' + std::string(dest) + ',' + std::string(Pick(kPaths)) + ':';
    }

    std::string PlainReport();
    std::string MicEReport();
    std::string Wind();
    std::string WeatherReport();
    std::string ObjectReport();
    std::string StatusReport();
    std::string Telemetry();
    std::string Message();
    std::string Broken();

    std::mt19937 m_engine;
};

std::string Mixer::Call()
{
    std::string call = "N" + std::to_string(Below(10));
    for (int i = 0; i < 3; ++i)
        call += static_cast<char>('A' + Below(26));
    return Below(3) == 0 ? call : call + '-' + std::to_string(Below(15) + 1);
}

std::string Mixer::PlainReport()
{
    const Place place = AnyPlace();
    const std::string_view symbol = Pick(kSymbols);
    if (Below(20) == 0)
        return Head("APRS42") + '!' + CompressedPosition(place, symbol, AnyMovement()) + std::string(Pick(kComments));
    std::string text = Head("APRS42");
    switch (Below(3)) {
    case 0:
        text += '@' + Time();
        break;
    case 1:
        text += '=';
        break;
    default:
        text += '!';
        break;
    }
    text += PlainPosition(place, symbol);
    switch (Below(4)) {
    case 0:
        text += CourseSpeed(AnyMovement()) + Altitude(Below(6000));
        break;
    case 1:
        text += "PHG" + Digits(Below(10), 1) + Digits(Below(8), 1) + Digits(Below(9), 1) + Digits(Below(9), 1);
        break;
    default:
        break;
    }
    return text + std::string(Pick(kComments));
}

std::string Mixer::MicEReport()
{
    const Place place = AnyPlace();
    std::string text = Head(MicEDestination(place, Below(7))) + '`' + MicEBody(place, Pick(kSymbols), AnyMovement());
    text += '`' + MicEAltitude(Below(2000)) + std::string(Pick(kComments));
    if (Below(4) == 0)
        text += CommentTelemetry(Below(8000), Below(8000), Below(8000)) + Dao(place);
    return text + "_%";
}

std::string Mixer::Wind()
{
    return 'g' + Digits(Below(40), 3) + 't' + Digits(Below(99), 3) + 'r' + Digits(Below(20), 3) + 'p' +
           Digits(Below(90), 3) + 'P' + Digits(Below(90), 3) + 'h' + Digits(Below(100), 2) + 'b' +
           Digits(9800 + Below(500), 5);
}

std::string Mixer::WeatherReport()
{
    if (Below(10) == 0) {
        return Head("APRS42") + '_' + Digits(Below(12) + 1, 2) + Time().substr(0, 6) + 'c' + Digits(Below(360), 3) +
               's' + Digits(Below(30), 3) + Wind() + "wXYZ";
    }
    return Head("APRS42") + '@' + Time() + PlainPosition(AnyPlace(), "/_") + CourseSpeed(AnyMovement()) + Wind() +
           ".Stn1";
}

std::string Mixer::ObjectReport()
{
    std::string name = "145." + Digits(Below(1000), 3) + "-A";
    const std::string rest = PlainPosition(AnyPlace(), "/r") + "T100 R25m Net Mon 2000";
    if (Below(5) == 0)
        return Head("APRS42") + ')' + name + '!' + rest;
    name.resize(9, ' ');
    return Head("APRS42") + ';' + name + (Below(20) == 0 ? '_' : '*') + Time() + rest;
}

std::string Mixer::StatusReport()
{
    return Head("APRS42") + '>' + (Below(2) == 0 ? Time() : std::string()) + "Node up, " + std::to_string(Below(90)) +
           " stations heard, software 2.1 running since morning";
}

std::string Mixer::Telemetry()
{
    std::string text = Head("APRS42") + "T#" + Digits(Below(1000), 3);
    for (int i = 0; i < 5; ++i)
        text += ',' + Digits(Below(256), 3);
    return text + ",01000110";
}

std::string Mixer::Message()
{
    std::string to = Call();
    to.resize(9, ' ');
    const std::string head = Head("APRS42") + ':' + to + ':';
    switch (Below(4)) {
    case 0:
        return head + "ack" + std::to_string(Below(99));
    case 1:
        return Head("APRS42") + ":BLN1     :Net tonight at 2000 on the hill repeater";
    default:
        return head + "Will be there in ten minutes{" + std::to_string(Below(99));
    }
}

std::string Mixer::Broken()
{
    return Head("BEACON") + (Below(2) == 0 ? "Fill-in digi in the valley" : "!48.1234/11.5678#");
}

std::string Mixer::Line()
{
    const int share = Below(100);
    if (share < 14)
        return MicEReport();
    if (share < 55)
        return PlainReport();
    if (share < 71)
        return WeatherReport();
    if (share < 83)
        return ObjectReport();
    if (share < 92)
        return StatusReport();
    if (share < 95)
        return Telemetry();
    return share < 98 ? Message() : Broken();
}

} // namespace

std::vector<std::string> MakePacketMix(std::size_t count, std::uint32_t seed)
{
    Mixer mixer(seed);
    std::vector<std::string> lines;
    lines.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        lines.push_back(mixer.Line());
    return lines;
}

} // namespace ruvenmark
