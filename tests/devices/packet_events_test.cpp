#include "app/event_json.h"
#include "aprs/decode.h"
#include "devices/file_report_source.h"
#include "devices/packet_events.h"
#include "platform/failure.h"
#include "recorded_events.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Each event as the line that ruvenmark-decode writes for it.
struct RecordingSink {
    std::vector<std::string> events;
    std::function<void()> onEvent = [] {}; // Runs inside each event, after it is written down.
    EventJsonSink sink{[this](const nlohmann::ordered_json& event) {
        events.push_back(event.dump());
        onEvent();
    }};
};

std::vector<std::string> EventsOf(std::string_view line, RawData rawData = RawData::No)
{
    RecordingSink recorded;
    const bool bStopped = false;
    RaisePacketEvents(aprs::Decode(line), rawData, recorded.sink, bStopped);
    return recorded.events;
}

TEST(PacketEvents, RawDataComesFirstAndOnlyWhereAsked)
{
    EXPECT_THAT(EventsOf("N0AAA>APRS42:>Hi", RawData::Yes),
                ElementsAre(R"({"event":"ReportRawData","Packet":"N0AAA>APRS42:>Hi"})", HasSubstr("ReportStatus")));
    EXPECT_THAT(EventsOf("junk", RawData::Yes), ElementsAre(HasSubstr("ReportRawData"), HasSubstr("ReportPacket")));
    EXPECT_THAT(EventsOf("junk"), ElementsAre(R"({"event":"ReportPacket","Packet":"junk"})"));
}

// The tree, the lists and the files are written line by line: one such byte in a text would tear them.
TEST(PacketEvents, NoLineEndOrNulReachesAText)
{
    using namespace std::string_literals;
    for (const std::string& info : {">a\0b\rc\nd"s, ":X        :a\0b\rc\nd"s, "<a\0b\rc\nd"s, "{Qa\0b\rc\nd"s,
                                    "!4930.00N/07230.00W-a\0b/A=000010c\rd"s, "a\0b\rc\nd"s}) {
        bool bWhole = false;
        for (const std::string& event : EventsOf("N0AAA>APRS42:" + info, RawData::Yes)) {
            EXPECT_EQ(event.find('\\'), std::string::npos) << event; // Nothing that had to be escaped.
            bWhole = bWhole || event.find("abcd") != std::string::npos;
        }
        EXPECT_TRUE(bWhole) << info;
    }
    EXPECT_THAT(EventsOf(std::string(2000, '\r') + "x"), ElementsAre(HasSubstr(R"("x")")));
}

constexpr std::string_view kFourEvents = "N0AAA>APRS42:;LEADER 1 *092345z4930.00N/07230.00W>088/036/A=001000";

TEST(FileReportSource, RaisesBeforeItReturnsAndCounts)
{
    RecordingSink recorded;
    LineCounts counts;
    FileReportSource source(recorded.sink, counts);
    source.ParseLine("N0AAA>APRS42:>Hi");
    EXPECT_EQ(recorded.events.size(), 1U);
    source.ParseLine("N0AAA>APRS42:!4930.00N");
    source.ParseLine("no packet");
    source.ParseLine("neither is this");
    EXPECT_EQ(counts.decoded, 1U);
    EXPECT_EQ(counts.Undecoded(), 3U);
    EXPECT_EQ(counts.undecoded[static_cast<std::size_t>(aprs::Refusal::NoPayload)], 2U);
    EXPECT_EQ(counts.undecoded[static_cast<std::size_t>(aprs::Refusal::PositionTooShort)], 1U);
    EXPECT_EQ(recorded.events.back(), R"({"event":"ReportPacket","Packet":"neither is this"})");
}

// A load that is cancelled drops the source from inside an event: the rest of the line must stay unsaid.
TEST(FileReportSource, DroppedInsideAnyOfItsEventsItFallsSilent)
{
    RecordingSink recorded;
    LineCounts counts;
    const auto run = [&](std::unique_ptr<IReportSource>& source) {
        source = std::make_unique<FileReportSource>(recorded.sink, counts);
        source->ParseLine(kFourEvents);
    };
    EXPECT_TRUE(IsSilentOnceDropped<IReportSource>(4, recorded, run));
}

TEST(FileReportSource, DroppedInsideANestedLineSilencesTheOuterToo)
{
    RecordingSink recorded;
    LineCounts counts;
    std::unique_ptr<IReportSource> source = std::make_unique<FileReportSource>(recorded.sink, counts);
    recorded.onEvent = [&] {
        if (recorded.events.size() == 1)
            source->ParseLine("N0BBB>APRS42:>092345zinner");
        else if (recorded.events.size() == 2)
            source.reset();
    };
    source->ParseLine(kFourEvents);
    EXPECT_EQ(recorded.events.size(), 2U);
}

TEST(FileReportSource, OutlivesAnEventThatRaises)
{
    RecordingSink recorded;
    LineCounts counts;
    FileReportSource source(recorded.sink, counts);
    recorded.onEvent = [] { throw Failure("abandoned"); };
    EXPECT_THROW(source.ParseLine(kFourEvents), Failure);
    recorded.onEvent = [] {};
    source.ParseLine("N0AAA>APRS42:>Hi");
    EXPECT_NE(recorded.events.back().find("ReportStatus"), std::string::npos);
}

} // namespace
} // namespace ruvenmark
