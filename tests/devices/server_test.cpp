#include "devices/server_source.h"
#include "recorded_events.h"
#include "support/fake_byte_links.h"

#include <gmock/gmock.h>

#include <ctime>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct Server : testing::Test {
    FakeByteLinks links;
    LineCounts counts;
    RecordedEvents recorded;
    std::unique_ptr<ServerSource> source = std::make_unique<ServerSource>(links, recorded.sink, counts);

    void Connect()
    {
        source = std::make_unique<ServerSource>(links, recorded.sink, counts);
        recorded.events.clear();
        source->ConnectServer("server", 14580, kAccessToken);
    }
};

constexpr std::string_view kSession = "# aprsc 2.1.21-gbfc2090\r\n"
                                      "# Parse errors on filter spec: 'zz/1'\r\n"
                                      "# logresp W1AW unverified, server T2LOOP\n"
                                      "\r\n"
                                      "W1AW>APRS,TCPIP*,qAC,T2LOOP:>one\r\n"
                                      "# aprsc 2.1.21-gbfc2090 23 Nov 2026 07:31:22 GMT T2LOOP 127.0.0.1:14580\r\n"
                                      "W1AW>APRS:>two \xC3\n"
                                      "W1AW>APRS:>not ended";

// A server that does not pass on what is sent says so in a comment, and nowhere else.
TEST_F(Server, TellsPacketsAndWhatTheServerComplainsOf)
{
    ForEveryCut(kSession, [&](const std::vector<std::string>& pieces) {
        Connect();
        links.Say(pieces);
        EXPECT_THAT(recorded.Raw(),
                    ElementsAre("# Parse errors on filter spec: 'zz/1'", "# logresp W1AW unverified, server T2LOOP",
                                "W1AW>APRS,TCPIP*,qAC,T2LOOP:>one", "W1AW>APRS:>two \u00C3"));
        EXPECT_EQ(recorded.events.size(), 6U);
    });
}

// The beginning of an endless line must neither pass for a packet nor fill the memory.
TEST_F(Server, LeavesOutLinesThatAreTooLong)
{
    Connect();
    const std::string packet = "W1AW>APRS:>";
    links.Say(packet + std::string(1024 - packet.size(), 'x') + "\r\n");
    EXPECT_EQ(recorded.events.size(), 2U);
    recorded.events.clear();
    links.Say(packet + std::string(1025 - packet.size(), 'x') + "\r\n");
    for (int i = 0; i < 100; ++i)
        links.Say(std::string(1000, 'x'));
    links.Say("W1AW>APRS:>end\r\nW1AW>APRS:>next\r\n");
    EXPECT_THAT(recorded.Raw(), ElementsAre("W1AW>APRS:>next"));
}

TEST_F(Server, ConnectsInTheCallAndRaisesNoEventOfItsFailure)
{
    EXPECT_THROW(source->ConnectServer("server", 14580, "1234"), Failure);
    links.bRefuse = true;
    EXPECT_THROW(Connect(), Failure);
    EXPECT_THROW(source->SendServerLine("user W1AW"), Failure);
    links.bRefuse = false;
    Connect();
    EXPECT_EQ(links.opened, "connect server 14580 15");
    source->CloseServer();
    EXPECT_FALSE(links.IsKept());
    EXPECT_THROW(source->CloseServer(), Failure);
    EXPECT_THAT(recorded.events, IsEmpty());
}

// A line end inside a comment of the operator's would send a second line under his call.
TEST_F(Server, SendsWholeLinesOnly)
{
    using namespace std::string_literals;
    Connect();
    source->SendServerLine("W1AW>APRS,TCPIP*:>a\r\nN0CALL>APRS:>b\0\xFF"s);
    EXPECT_EQ(links.Written(), "W1AW>APRS,TCPIP*:>aN0CALL>APRS:>b\xFF\r\n");
    source->SendServerLine(std::string(510, 'x'));
    EXPECT_THROW(source->SendServerLine(std::string(511, 'x')), Failure);
    EXPECT_THROW(source->SendServerLine("\r\n"), Failure);
    EXPECT_EQ(links.Written().size(), 512U);
}

// Times of reports are UTC: an hour to the east is an hour less.
TEST_F(Server, TellsWhatToAddToLocalTime)
{
    EXPECT_THROW(source->GetUtcOffset(), Failure);
    Connect();
    ASSERT_EQ(::setenv("TZ", "EAST-1:30", 1), 0);
    ::tzset();
    EXPECT_EQ(source->GetUtcOffset(), -90);
    ::unsetenv("TZ");
    ::tzset();
}

// Told at once, a server that takes calls and drops them would be called without a pause.
TEST_F(Server, TellsALossOnceAndNotSoonerThanFiveSecondsAfterTheConnect)
{
    Connect();
    links.Tick(1s);
    links.Lose();
    EXPECT_THROW(source->SendServerLine("W1AW>APRS:>Hi"), Failure);
    links.Tick(3750ms);
    EXPECT_THAT(recorded.events, IsEmpty());
    links.Tick(10s);
    EXPECT_THAT(recorded.events, ElementsAre("ServerConnectionError"));
    EXPECT_FALSE(links.IsKept());

    Connect();
    links.Tick(5s);
    links.Lose();
    EXPECT_THAT(recorded.events, ElementsAre("ServerConnectionError"));
}

TEST_F(Server, SilenceIsCountedAndALossInTheEnd)
{
    EXPECT_EQ(source->SilentFor(), 0s);
    Connect();
    links.Tick(90s);
    EXPECT_EQ(source->SilentFor(), 90s);
    links.Say("#");
    EXPECT_EQ(source->SilentFor(), 0s);
    links.Tick(90s);
    EXPECT_THAT(recorded.events, IsEmpty());
    links.Tick(1s);
    EXPECT_THAT(recorded.events, ElementsAre("ServerConnectionError"));
    EXPECT_FALSE(links.IsKept());
    EXPECT_EQ(source->SilentFor(), 0s);
}

// Beside its shape in the server's own words and in an echo, the password may be anything: a packet of a stranger that
// holds the same figures must come through as it is.
TEST_F(Server, TheLoginIsNeverTheirsToReadThatLookAtTheLines)
{
    struct Case {
        const char* line;
        const char* heard;
    };
    Connect();
    source->SendServerLine("user W1AW-7 pass 25988 vers X 1.0 filter r/1/2/3");
    for (const Case& row :
         {Case{"# Invalid login: user w1aw pass 25988 vers x", "# Invalid login: user w1aw pass ... vers x"},
          Case{"# invalid password 25988, W1AW", "# invalid password ..., W1AW"},
          Case{"# error: pass 2598 of W1AW", "# error: pass ... of W1AW"},
          Case{"user W1AW-7 pass 25988 vers X 1.0", "user W1AW-7 pass ... vers X 1.0"},
          Case{"N0CALL>APRS:>user W1AW pass 25988", "N0CALL>APRS:>user W1AW pass ..."},
          Case{"N0CALL>APRS:>25988 ft, pass 1", "N0CALL>APRS:>25988 ft, pass 1"},
          Case{"# error 125988", "# error 125988"}}) {
        recorded.events.clear();
        links.Say(std::string(row.line) + "\r\n");
        EXPECT_THAT(recorded.Raw(), ElementsAre(row.heard));
        const bool bSecret = std::string(row.line) != row.heard;
        for (const std::string& event : recorded.events)
            EXPECT_FALSE(bSecret && event.find("25988") != std::string::npos) << event;
    }
    Connect();
    source->SendServerLine("user W1AW-7 pass . vers X 1.0"); // Its own dots must not be hidden again, for ever.
    links.Say("# invalid . login\r\n");
    EXPECT_EQ(recorded.Raw().back(), "# invalid ... login");
}

TEST_F(Server, DroppedInsideAnyOfItsEventsItFallsSilent)
{
    const auto run = [&] {
        Connect();
        links.Say(kSession);
        links.Tick(6s);
        links.Lose();
    };
    EXPECT_TRUE(IsSilentOnceDropped(7, recorded, source, run));
}

} // namespace
} // namespace ruvenmark
