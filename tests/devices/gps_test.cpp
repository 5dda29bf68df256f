#include "devices/gps_server.h"
#include "recorded_events.h"
#include "support/fake_byte_links.h"

#include <gmock/gmock.h>

#include <cstdio>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

// Fixes in words: "48.1173 11.516667 alt 1789 course 84 speed 22", "lost", "error".
struct RecordedFixes final : IGpsSink {
    std::vector<std::string> events;
    std::function<void()> onEvent = [] {};

    void Note(const char* event)
    {
        events.emplace_back(event);
        onEvent();
    }
    void PositionFix(const GpsReport& fix) override
    {
        char text[128];
        std::snprintf(text, sizeof text, "%.6g %.8g alt %.0f course %.0f speed %.0f", fix.lat, fix.lon, fix.altitude,
                      fix.course, fix.speed);
        Note(fix.bValid ? text : "lost");
    }
    void ConnectionError() override { Note("error"); }
};

std::string WithSum(const std::string& text)
{
    unsigned sum = 0;
    for (const char c : text)
        sum ^= static_cast<unsigned char>(c);
    char end[8];
    std::snprintf(end, sizeof end, "*%02X\r\n", sum);
    return '$' + text + end;
}

std::string Rmc(const std::string& time, char status = 'A')
{
    return WithSum("GPRMC," + time + ',' + status + ",4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W");
}
std::string Gga(const std::string& time, char quality = '1')
{
    return WithSum("GNGGA," + time + ",4807.038,N,01131.000,E," + quality + ",08,0.9,545.4,M,46.9,M,,");
}

constexpr std::string_view kWhole = "48.1173 11.516667 alt 1789 course 84 speed 22";

struct Gps : testing::Test {
    FakeByteLinks links;
    RecordedFixes recorded;
    std::unique_ptr<GpsServer> server = std::make_unique<GpsServer>(links, recorded);

    void Open() { server->OpenGpsPort("/dev/ttyS0", 4800, kAccessToken); }
    void Start()
    {
        recorded.events.clear();
        server = std::make_unique<GpsServer>(links, recorded);
        Open();
    }
    // What comes of the sentences once the receiver pauses.
    std::vector<std::string> FixesOf(const std::string& sentences)
    {
        Start();
        links.Say(sentences);
        links.Tick(500ms);
        return recorded.events;
    }
};

// The parts of one fix come in any order and with any number of zeros behind the time.
TEST_F(Gps, PutsSentencesOfOneTimeTogether)
{
    const std::string noise = WithSum("GPGSV,3,1,11,03,03,111,00") + "\xFF\x80$GP\r\n" + "$PGRMC,A,1,2\r\n";
    ForEveryCut(noise + Rmc("123519.00") + noise + Gga("123519") + noise + Gga("123520.0") + Rmc("123520"),
                [&](const std::vector<std::string>& pieces) {
                    Start();
                    links.Say(pieces);
                    EXPECT_THAT(recorded.events, ElementsAre(kWhole)); // The second may go on.
                    links.Tick(500ms);
                    EXPECT_THAT(recorded.events, ElementsAre(kWhole, kWhole));
                });
}

TEST_F(Gps, TakesWhatReceiversSend)
{
    EXPECT_THAT(FixesOf(Rmc("123519") + WithSum("GPGLL,4807.038,N,01131.000,E,123519,A")),
                ElementsAre("48.1173 11.516667 alt -999 course 84 speed 22"));
    constexpr std::string_view kNoCourse = "48.1173 11.516667 alt 1789 course -999 speed -999";
    constexpr std::string_view kPlace = "48.1173 11.516667 alt -999 course -999 speed -999";
    EXPECT_THAT(FixesOf(Gga("1") + Gga("2") + Gga("3")), ElementsAre(kNoCourse, kNoCourse, kNoCourse));
    EXPECT_THAT(FixesOf("$GPGLL,4807.038,N,01131.000,E\r\n$GPGLL,4807.038,N,01131.000,E\n"),
                ElementsAre(kPlace, kPlace)); // No time at all.
    EXPECT_THAT(FixesOf(WithSum("BDGLL,4807.038,N,01131.000,E,123519,A")), ElementsAre(kPlace));
    EXPECT_THAT(FixesOf("$GPRMC,123519,A,4807.038,N,01131.000,E,000.0,,230394,,\r\n"),
                ElementsAre("48.1173 11.516667 alt -999 course -999 speed 0")); // At rest.
    EXPECT_THAT(FixesOf(WithSum("GPGLL,4807.038,S,01131.000,W,123519,A")),
                ElementsAre("-48.1173 -11.516667 alt -999 course -999 speed -999"));
}

TEST_F(Gps, RefusesWhatIsSpoilt)
{
    std::string spoilt = Rmc("123519");
    spoilt[20] = '5';
    EXPECT_THAT(FixesOf(spoilt), IsEmpty());
    EXPECT_THAT(FixesOf("$GPGLL,4807.038,N,01131.000,E,123519,A*\r\n"), IsEmpty()); // Its sum is lost.
    EXPECT_THAT(FixesOf("$GPGLL,4807.038,N,01131.000,E,123519,A*5\r\n"), IsEmpty());
    EXPECT_THAT(FixesOf("$GPGLL,9907.038,N,01131.000,E\r\n"), IsEmpty());
    EXPECT_THAT(FixesOf("$PGRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W\r\n"), IsEmpty());
    EXPECT_THAT(FixesOf("$GPGLL,48$GPGLL,4807.038,N,01131.000,E\r\n").size(), 1U); // Bytes lost between.
    EXPECT_THAT(FixesOf(std::string(100000, '$') + "\r\n" + Rmc("123519")).size(), 1U);
}

// Whoever hears of each loss only once can mark the place as old and leave it at that.
TEST_F(Gps, TellsAVoidFixOnce)
{
    EXPECT_THAT(FixesOf(Rmc("1", 'V') + Rmc("2", 'V') + Gga("3", '0') + Rmc("4") + Gga("5", '0') + Rmc("6", 'V')),
                ElementsAre("lost", "48.1173 11.516667 alt -999 course 84 speed 22", "lost"));
    EXPECT_THAT(FixesOf(Rmc("1", 'V') + Gga("1")), ElementsAre("lost")); // A receiver in doubt.
}

TEST_F(Gps, TellsSilenceOnceWhateverElseIsSent)
{
    Open();
    links.Tick(9750ms);
    EXPECT_THAT(recorded.events, IsEmpty());
    links.Tick(250ms);
    EXPECT_THAT(recorded.events, ElementsAre("lost"));
    links.Tick(20s);
    for (int second = 0; second < 60; ++second) { // Of half of them, satellites alone.
        links.Say(second < 30 ? Rmc(std::to_string(second)) : WithSum("GPGSV,3,1,11,03,03,111,00"));
        links.Tick(1s);
    }
    EXPECT_EQ(recorded.events.size(), 32U);
    EXPECT_EQ(recorded.events.back(), "lost");
}

TEST_F(Gps, OpensClosesFailsOnceAndFallsSilentOnceDropped)
{
    EXPECT_THROW(server->OpenGpsPort("/dev/ttyS0", 4800, "1234"), Failure);
    links.bRefuse = true;
    EXPECT_THROW(Open(), Failure);
    links.bRefuse = false;
    EXPECT_THROW(server->CloseGpsPort(), Failure);
    Open();
    EXPECT_EQ(links.opened, "serial /dev/ttyS0 4800");
    links.Lose();
    EXPECT_THAT(recorded.events, ElementsAre("error"));
    EXPECT_FALSE(links.IsKept());
    Open();
    server->CloseGpsPort();
    EXPECT_FALSE(links.IsKept());
    const auto run = [&] {
        Start();
        links.Say(Rmc("1") + Rmc("2") + Rmc("3"));
        links.Tick(1s);
        links.Lose();
    };
    EXPECT_TRUE(IsSilentOnceDropped(4, recorded, server, run));
}

} // namespace
} // namespace ruvenmark
