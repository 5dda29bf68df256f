#include "aprs/decode.h"
#include "devices/file_report_source.h"
#include "devices/packet_events.h"
#include "platform/failure.h"
#include "recorded_events.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace ruvenmark {
namespace {

using testing::ElementsAre;

std::vector<std::string> EventsOf(std::string_view line, RawData rawData)
{
    RecordedEvents recorded;
    const bool bStopped = false;
    RaisePacketEvents(aprs::Decode(line), rawData, recorded.sink, bStopped);
    return recorded.events;
}

TEST(PacketEvents, RawDataComesFirstAndOnlyWhereAsked)
{
    EXPECT_THAT(EventsOf("N0AAA>APRS42:>Hi", RawData::Yes),
                ElementsAre("ReportRawData N0AAA>APRS42:>Hi", "ReportStatus Hi"));
    EXPECT_THAT(EventsOf("junk", RawData::Yes), ElementsAre("ReportRawData junk", "ReportPacket junk"));
    EXPECT_THAT(EventsOf("junk", RawData::No), ElementsAre("ReportPacket junk"));
}

// The tree, the lists and the files are written line by line: one such byte in a text would tear them.
TEST(PacketEvents, NoLineEndOrNulReachesAText)
{
    using namespace std::string_literals;
    for (const std::string& info : {">a\0b\rc\nd"s, ":X        :a\0b\rc\nd"s, "<a\0b\rc\nd"s, "{Qa\0b\rc\nd"s,
                                    "!4930.00N/07230.00W-a\0b/A=000010c\rd"s, "a\0b\rc\nd"s}) {
        std::string events;
        EventJsonSink sink([&](const nlohmann::ordered_json& event) { events += event.dump(); });
        const std::string line = "N0AAA>APRS42:" + info;
        const bool bStopped = false;
        RaisePacketEvents(aprs::Decode(line), RawData::Yes, sink, bStopped);
        EXPECT_EQ(events.find('\\'), std::string::npos) << events; // Nothing that had to be escaped.
        EXPECT_NE(events.find("abcd"), std::string::npos) << info;
    }
    EXPECT_THAT(EventsOf(std::string(2000, '\r') + "x", RawData::No), ElementsAre("ReportPacket x"));
}

constexpr std::string_view kFourEvents = "N0AAA>APRS42:;LEADER 1 *092345z4930.00N/07230.00W>088/036/A=001000";

struct LinesOfAFile : testing::Test {
    RecordedEvents recorded;
    LineCounts counts;
    std::unique_ptr<FileReportSource> source = std::make_unique<FileReportSource>(recorded.sink, counts);
};

TEST_F(LinesOfAFile, AreTakenAtOnceAndCounted)
{
    for (const char* line : {"N0AAA>APRS42:>Hi", "N0AAA>APRS42:!4930.00N", "no packet", "neither is this"})
        source->ParseLine(line);
    EXPECT_EQ(recorded.events.back(), "ReportPacket neither is this");
    EXPECT_EQ(counts.decoded, 1U);
    EXPECT_EQ(counts.Undecoded(), 3U);
    EXPECT_EQ(counts.undecoded[static_cast<std::size_t>(aprs::Refusal::NoPayload)], 2U);
    EXPECT_EQ(counts.undecoded[static_cast<std::size_t>(aprs::Refusal::PositionTooShort)], 1U);
}

// A load that is cancelled drops the source from inside an event: the rest of the line must stay unsaid, and of a line
// around it, too.
TEST_F(LinesOfAFile, FallSilentOnceTheirSourceIsDropped)
{
    const auto run = [&] {
        source = std::make_unique<FileReportSource>(recorded.sink, counts);
        source->ParseLine(kFourEvents);
    };
    EXPECT_TRUE(IsSilentOnceDropped(4, recorded, source, run));
    recorded.events.clear();
    recorded.onEvent = [&] {
        if (recorded.events.size() == 1)
            source->ParseLine("N0BBB>APRS42:>092345zinner");
        else
            source.reset();
    };
    run();
    EXPECT_EQ(recorded.events.size(), 2U);
}

TEST_F(LinesOfAFile, GoOnBehindAnEventThatRaises)
{
    recorded.onEvent = [] { throw Failure("abandoned"); };
    EXPECT_THROW(source->ParseLine(kFourEvents), Failure);
    recorded.onEvent = [] {};
    source->ParseLine("N0AAA>APRS42:>Hi");
    EXPECT_EQ(recorded.events.back(), "ReportStatus Hi");
}

} // namespace
} // namespace ruvenmark
