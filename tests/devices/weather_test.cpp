#include "devices/weather_server.h"
#include "recorded_events.h"
#include "support/fake_byte_links.h"

#include <gmock/gmock.h>

#include <cstdio>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

// Updates in the order of a report: "268/5.0g9.0 t74.7 r0p0P25 h57 b10096"; "-" where a value is missing.
struct RecordedWeather final : IWeatherSink {
    std::vector<std::string> events;
    std::function<void()> onEvent = [] {};

    static std::string Text(double value)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.5g", value);
        return value > kAbsent ? text : "-";
    }
    void Note(std::string event)
    {
        events.push_back(std::move(event));
        onEvent();
    }
    void UpdateWeather(const WeatherUpdate& update) override
    {
        Note((update.windDir < 0 ? "-" : std::to_string(update.windDir)) + '/' + Text(update.windSpeed) + 'g' +
             Text(update.gust) + " t" + Text(update.temperature) + " r" + Text(update.rain1) + 'p' +
             Text(update.rain24) + 'P' + Text(update.rain12) + " h" + Text(update.humidity) + " b" +
             Text(update.pressure));
    }
    void ConnectionError() override { Note("error"); }
};

struct Weather : testing::Test {
    FakeByteLinks links;
    RecordedWeather recorded;
    std::unique_ptr<WeatherServer> server = std::make_unique<WeatherServer>(links, recorded);

    // A new one.
    void Open(std::int32_t baud)
    {
        recorded.events.clear();
        server = std::make_unique<WeatherServer>(links, recorded);
        server->OpenWxPort("/dev/ttyS0", baud, kAccessToken);
    }
    // As a console that is asked what its gauge measures.
    void OpenDavis()
    {
        Open(19200);
        links.Tick(250ms);
        links.Say("\n\r");
    }
    std::vector<std::string> UpdatesOf(const std::string& lines)
    {
        Open(2400);
        links.Say(lines);
        return recorded.events;
    }
};

constexpr std::string_view kLogger = "!!005100BE02EB0064277002A8023A023A0025005800000000\r\n";
constexpr std::string_view kLoggerUpdate = "268/0g0 t74.7 r0p0P0 h57 b10096";

TEST_F(Weather, ReadsEveryModeOfAnUltimeter)
{
    EXPECT_THAT(UpdatesOf(std::string(kLogger)), ElementsAre(kLoggerUpdate));
    // Without the last two values: the wind of the moment, and no rain of today.
    EXPECT_THAT(UpdatesOf("!!005100BE02EB0064277002A8023A023A00250058\n"),
                ElementsAre("268/5g5 t74.7 r0p0P- h57 b10096"));
    EXPECT_THAT(UpdatesOf("$ULTW0053002D028D02FA2813000D87BD000103E8015703430010000C\r\n"),
                ElementsAre("64/0.7g5.2 t65.3 r0p0P16 h100 b10259"));
    EXPECT_THAT(UpdatesOf("$ULTW00000000FFEA0000296F000A9663000103E80016025D\r\n"),
                ElementsAre("360/-g0 t-2.2 r0p0P- h100 b10607"));
    EXPECT_THAT(UpdatesOf("&CR&005100BE009000BE000002EB00192770" + std::string(16, '0') + "0000" +
                          std::string(40, '0') + "\r\n"),
                ElementsAre("268/5g8.9 t74.7 r0p0P25 h- b10096"));
    EXPECT_THAT(UpdatesOf("!!------------------------" + std::string("----------------") + "\r\n"),
                ElementsAre("-/-g- t- r-p-P- h- b-"));
}

// A line of which bytes are lost shifts every value behind them.
TEST_F(Weather, TakesWholeLinesOnlyWhereverTheyAreCut)
{
    for (std::size_t lost = 1; lost < kLogger.size() - 2; ++lost) {
        std::string spoilt(kLogger);
        spoilt.erase(lost, 1);
        EXPECT_THAT(UpdatesOf(spoilt + spoilt.substr(lost) + std::string(kLogger)), ElementsAre(kLoggerUpdate));
    }
    EXPECT_THAT(UpdatesOf("!!00510-BE02EB0064277002A8023A023A0025005800000000\r\n"), IsEmpty());
    EXPECT_THAT(UpdatesOf("!!7FFF00BE7FFF8000000002A88000023A0025005880007FFF\r\n"),
                ElementsAre("268/-g- t- r-p-P- h- b-")); // Such weather is none.
    ForEveryCut("\xFF!!\r\n" + std::string(kLogger), [&](const std::vector<std::string>& pieces) {
        Open(2400);
        links.Say(pieces);
        EXPECT_THAT(recorded.events, ElementsAre(kLoggerUpdate));
    });
}

// Reports tell the peak of five minutes, and the rain of an hour and a day: stations tell neither.
TEST_F(Weather, KeepsPeaksAndRainAsLongAsReportsTellThem)
{
    const auto say = [&](int wind, int rain) {
        char line[64];
        std::snprintf(line, sizeof line, "!!%04X00BE02EB%04X277002A8023A023A00250058----%04X\r\n", wind, rain, wind);
        links.Say(line);
        return recorded.events.back();
    };
    Open(2400);
    EXPECT_EQ(say(161, 1000), "268/10g10 t74.7 r0p0P- h57 b10096");
    links.Tick(4min);
    EXPECT_EQ(say(32, 1007), "268/2g10 t74.7 r7p7P- h57 b10096");
    links.Tick(2min);
    EXPECT_EQ(say(32, 9000), "268/2g2 t74.7 r7p7P- h57 b10096"); // Read wrongly, and back.
    EXPECT_EQ(say(32, 1008), "268/2g2 t74.7 r7p7P- h57 b10096");
    EXPECT_EQ(say(32, 1009), "268/2g2 t74.7 r8p8P- h57 b10096");
    EXPECT_EQ(say(32, 1020), "268/2g2 t74.7 r8p8P- h57 b10096"); // More than falls at once.
    links.Tick(57min);
    EXPECT_EQ(say(32, 2), "268/2g2 t74.7 r8p8P- h57 b10096"); // The counter was reset.
    links.Tick(2min);
    EXPECT_EQ(say(32, 3), "268/2g2 t74.7 r2p9P- h57 b10096");
    links.Tick(23h + 59min);
    EXPECT_EQ(say(32, 3), "268/2g2 t74.7 r0p1P- h57 b10096");
    links.Tick(1min);
    EXPECT_EQ(say(32, 3), "268/2g2 t74.7 r0p0P- h57 b10096");
}

unsigned Crc(std::string_view bytes)
{
    unsigned crc = 0;
    for (const char c : bytes) {
        crc ^= static_cast<unsigned>(static_cast<unsigned char>(c)) << 8U;
        for (int bit = 0; bit < 8; ++bit)
            crc = ((crc << 1U) ^ ((crc & 0x8000U) != 0 ? 0x1021U : 0U)) & 0xFFFFU;
    }
    return crc;
}

std::string WithCrc(std::string bytes)
{
    const unsigned crc = Crc(bytes);
    return bytes + static_cast<char>(crc >> 8U) + static_cast<char>(crc & 0xFFU);
}

std::string DavisPacket(int rain)
{
    std::string packet(95, '\xFF');
    packet.replace(0, 7, "LOO\0\0\0\0"s).replace(7, 2, "\x76\x74"s); // 29.814 inches.
    packet.replace(12, 6, "\xEB\x02\x05\x06\x0C\x01"s)
        .replace(33, 1, "\x39")
        .replace(50, 1, 1, static_cast<char>(rain));
    packet[51] = 0;
    return WithCrc(packet + "\n\r");
}

TEST_F(Weather, WakesADavisConsoleAsksForItsGaugeAndReads)
{
    Open(19200);
    EXPECT_EQ(links.WrittenIn(250ms), "\n");
    EXPECT_EQ(links.WrittenIn(1s), "");
    EXPECT_EQ(links.WrittenIn(500ms), "\n");
    EXPECT_EQ(links.AnswerTo("\n\r"), "EEBRD 2B 01\n");
    const std::string gauge = "\x06" + WithCrc("\x10"); // 0.2 mm a click.
    EXPECT_EQ(links.AnswerTo(gauge.substr(0, 2)), "");
    EXPECT_EQ(links.AnswerTo(gauge.substr(2)), "LOOP 200\n");
    links.Say("\x06" + DavisPacket(100));
    EXPECT_THAT(recorded.events, ElementsAre("268/6g6 t74.7 r0p0P79 h57 b10096"));
    links.Tick(5s);
    links.Say(DavisPacket(110));
    EXPECT_EQ(recorded.events.back(), "268/6g6 t74.7 r8p8P87 h57 b10096");
    EXPECT_EQ(links.WrittenIn(9s), "");
    EXPECT_EQ(links.WrittenIn(2s), "\n");
    EXPECT_EQ(links.AnswerTo("\n\r"), "LOOP 200\n");
    for (int i = 0; i < 200; ++i)
        links.Say(DavisPacket(110));
    EXPECT_EQ(links.Written(), "\n"); // All that was asked for has come.
}

// A console of another make of gauge memory answers "not understood", or nothing; then a click is 0.01 inch.
TEST_F(Weather, FindsDavisPacketsAmongNoise)
{
    std::string spoilt = DavisPacket(7);
    spoilt[20] = 'x';
    ForEveryCut("LOLOO" + spoilt + DavisPacket(25) + "LOO", [&](const std::vector<std::string>& pieces) {
        OpenDavis();
        links.Say("!");
        links.Say(pieces);
        EXPECT_THAT(recorded.events, ElementsAre("268/6g6 t74.7 r0p0P25 h57 b10096"));
    });
    OpenDavis();
    EXPECT_EQ(links.WrittenIn(2s), "\nEEBRD 2B 01\nLOOP 200\n");
    OpenDavis();
    links.Say("\x06" + WithCrc("\x20")); // 0.1 mm a click.
    links.Say("\x06" + DavisPacket(100));
    EXPECT_EQ(recorded.events.back(), "268/6g6 t74.7 r0p0P39 h57 b10096");
}

// An Ultimeter may be set to the same rate: it is no longer woken once it has spoken.
TEST_F(Weather, LeavesAnUltimeterInPeace)
{
    Open(2400);
    EXPECT_EQ(links.WrittenIn(10s), "");
    Open(19200);
    links.Say(kLogger);
    EXPECT_EQ(links.WrittenIn(10s), "");
    EXPECT_EQ(recorded.events.size(), 1U);
}

TEST_F(Weather, OpensClosesFailsOnceAndFallsSilentOnceDropped)
{
    EXPECT_THROW(server->OpenWxPort("/dev/ttyS0", 2400, "1234"), Failure);
    EXPECT_THROW(server->CloseWxPort(), Failure);
    Open(2400);
    EXPECT_EQ(links.opened, "serial /dev/ttyS0 2400");
    server->CloseWxPort();
    EXPECT_FALSE(links.IsKept());
    const auto run = [&] {
        Open(2400);
        links.Say(std::string(kLogger) + std::string(kLogger));
        links.Lose();
    };
    EXPECT_TRUE(IsSilentOnceDropped(3, recorded, server, run));
    EXPECT_EQ(recorded.events.back(), "error");
}

} // namespace
} // namespace ruvenmark
