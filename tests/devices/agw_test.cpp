#include "devices/agw_source.h"
#include "devices/ax25.h"
#include "recorded_events.h"
#include "support/fake_byte_links.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Frame(char kind, const std::string& data)
{
    AgwFrame frame;
    frame.kind = kind;
    frame.data = data;
    return AgwBytes(frame);
}

std::string Heard(const std::string& info)
{
    return Frame('K', '\0' + MakeUiFrame("W1AW", "APRS", "", info));
}

// The length in its header is absurd.
std::string BrokenFrame()
{
    return Frame('K', "").replace(28, 4, "\xFF\xFF\xFF\x7F");
}

const std::string kPorts = Frame('G', "2;Port1 radio;Port2 radio;\0"s);

struct Agw : testing::Test {
    FakeByteLinks links;
    LineCounts counts;
    RecordedEvents recorded;
    std::unique_ptr<AgwSource> source = std::make_unique<AgwSource>(links, recorded.sink, counts);

    // A new one, which waits for the engine.
    void Start()
    {
        source = std::make_unique<AgwSource>(links, recorded.sink, counts);
        recorded.events.clear();
        source->ConnectSocket("engine", 8000, kAccessToken);
    }
    void Connect()
    {
        Start();
        links.Open();
        links.Say(kPorts);
        recorded.events.clear();
        links.Written();
    }
};

// Raw monitoring is turned on and off by turns: asked for twice, nothing would be heard.
TEST_F(Agw, AsksForPortsAndOnceForRawFrames)
{
    Start();
    EXPECT_EQ(links.opened, "socket engine 8000");
    EXPECT_EQ(links.Written(), "");
    links.Open();
    EXPECT_EQ(links.Written(), Frame('G', "") + Frame('k', ""));
    EXPECT_THAT(recorded.events, ElementsAre("SocketConnected"));
    links.Say(kPorts);
    EXPECT_EQ(links.WrittenIn(59s), "");
}

TEST_F(Agw, HearsRawFramesAmongOthersHoweverTheyArrive)
{
    const std::string text = Frame('U', " 1:Fm W1AW To APRS <UI pid=F0 Len=3 >\r>no\r");
    ForEveryCut(text + Heard(">a\xFF\x1C") + Frame('K', "") + Frame('K', "\0short"s) + Frame('z', "?") + Heard(">b"),
                [&](const std::vector<std::string>& pieces) {
                    Connect();
                    links.Say(pieces);
                    EXPECT_EQ(recorded.Raw().size(), 2U);
                    EXPECT_EQ(recorded.events.back(), "ReportStatus b");
                });
}

// Calls in the header are followed by anything; the length is the engine's word for how much comes.
TEST(AgwFrames, ReadsHeadersAsEnginesWriteThem)
{
    std::string bytes(36, '\xAA');
    bytes.replace(4, 1, "K").replace(8, 10, "W1AW-7\0abc"s).replace(18, 10, "0123456789").replace(28, 4, "\2\0\0\0"s);
    bytes[0] = 3;
    AgwReader reader;
    reader.Take(bytes + "xyz");
    const auto frame = reader.Next();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->port, 3);
    EXPECT_EQ(frame->from, "W1AW-7");
    EXPECT_EQ(frame->to, "0123456789");
    EXPECT_EQ(frame->data, "xy");
    EXPECT_FALSE(reader.Next());
    for (const bool bTooMuch : {false, true}) { // 8192 bytes, and one more.
        AgwReader next;
        next.Take(bytes.replace(28, 2, bTooMuch ? "\x01\x20"s : "\0\x20"s));
        EXPECT_FALSE(next.Next());
        EXPECT_EQ(next.IsBroken(), bTooMuch);
    }
}

TEST_F(Agw, SendsOnceItIsOpenAndHasAPort)
{
    const auto send = [&](std::string_view from) { source->SendFrame(from, "APRS", "WIDE1-1", ">Hi"); };
    EXPECT_THROW(send("W1AW"), Failure);
    Start();
    EXPECT_THROW(send("W1AW"), Failure);
    Connect();
    send("W1AW");
    EXPECT_NE(links.Written(), "");
    EXPECT_THROW(send("W1AW-77"), Failure);
    links.Say(Frame('G', "0;\0"s));
    EXPECT_THROW(send("W1AW"), Failure);
}

TEST_F(Agw, FailsOnceAndSaysWhetherItEverStood)
{
    EXPECT_THROW(source->ConnectSocket("engine", 8000, "1234"), Failure);
    links.bRefuse = true;
    EXPECT_THROW(Start(), Failure);
    links.bRefuse = false;
    Start();
    links.Lose();
    EXPECT_THAT(recorded.events, ElementsAre("SocketConnectionError"));
    EXPECT_FALSE(links.IsKept());
    Connect();
    links.Lose();
    EXPECT_THAT(recorded.events, ElementsAre("SocketConnectionClosed"));
    EXPECT_FALSE(links.IsKept());
    EXPECT_THROW(source->SendFrame("W1AW", "APRS", "", ">Hi"), Failure);
}

TEST_F(Agw, AnAbsurdLengthEndsTheLinkBehindWhatCameWhole)
{
    Connect();
    links.Say(Heard(">last") + BrokenFrame());
    EXPECT_THAT(recorded.events,
                ElementsAre("ReportRawData W1AW>APRS:>last", "ReportStatus last", "SocketConnectionClosed"));
    EXPECT_FALSE(links.IsKept());
}

// Sockets to a machine that is gone, or to a program that is no engine, stay open for hours.
TEST_F(Agw, ASilentEngineIsALostOne)
{
    Start();
    links.Tick(14750ms);
    EXPECT_THAT(recorded.events, IsEmpty());
    links.Tick(250ms);
    EXPECT_THAT(recorded.events, ElementsAre("SocketConnectionError"));

    Start();
    links.Open();
    links.Tick(16s);
    EXPECT_EQ(recorded.events.back(), "SocketConnectionClosed");

    Connect();
    EXPECT_EQ(links.WrittenIn(61s), Frame('R', "")); // Nothing on the air: asked, and answered.
    links.Say(Frame('R', std::string(8, '\0')));
    links.Tick(59s);
    EXPECT_THAT(recorded.events, IsEmpty());
    links.Tick(20s);
    EXPECT_THAT(recorded.events, ElementsAre("SocketConnectionClosed"));
}

TEST_F(Agw, DroppedInsideAnyOfItsEventsItFallsSilent)
{
    const auto run = [&] {
        Start();
        links.Open();
        links.Say(Heard(">a") + Heard(">b") + BrokenFrame());
    };
    EXPECT_TRUE(IsSilentOnceDropped(6, recorded, source, run));
}

} // namespace
} // namespace ruvenmark
