#include "devices/file_report_source.h"
#include "platform/failure.h"
#include "recording_sink.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

constexpr std::string_view kFourEvents = "N0AAA>APRS42:;LEADER 1 *092345z4930.00N/07230.00W>088/036/A=001000";

TEST(FileReportSource, RaisesBeforeItReturnsAndCounts)
{
    RecordingSink sink;
    LineCounts counts;
    FileReportSource source(sink, counts);
    source.ParseLine("N0AAA>APRS42:>Hi");
    EXPECT_EQ(sink.events.size(), 1U);
    source.ParseLine("N0AAA>APRS42:!4930.00N");
    source.ParseLine("no packet");
    source.ParseLine("neither is this");
    EXPECT_EQ(counts.decoded, 1U);
    EXPECT_EQ(counts.Undecoded(), 3U);
    EXPECT_EQ(counts.undecoded[static_cast<std::size_t>(aprs::Refusal::NoPayload)], 2U);
    EXPECT_EQ(counts.undecoded[static_cast<std::size_t>(aprs::Refusal::PositionTooShort)], 1U);
    EXPECT_EQ(sink.events.back(), "Packet|neither is this");
}

// A load that is cancelled drops the source from inside an event: the rest of the line must stay unsaid.
TEST(FileReportSource, DroppedInsideAnyOfItsEventsItFallsSilent)
{
    RecordingSink all;
    LineCounts counts;
    FileReportSource(all, counts).ParseLine(kFourEvents);
    ASSERT_EQ(all.events.size(), 4U);
    for (std::size_t last = 1; last <= all.events.size(); ++last) {
        RecordingSink sink;
        std::unique_ptr<IReportSource> source = std::make_unique<FileReportSource>(sink, counts);
        sink.onEvent = [&] {
            if (sink.events.size() == last)
                source.reset();
        };
        source->ParseLine(kFourEvents);
        EXPECT_EQ(sink.events.size(), last);
        EXPECT_EQ(source, nullptr);
    }
}

TEST(FileReportSource, DroppedInsideANestedLineSilencesTheOuterToo)
{
    RecordingSink sink;
    LineCounts counts;
    std::unique_ptr<IReportSource> source = std::make_unique<FileReportSource>(sink, counts);
    sink.onEvent = [&] {
        if (sink.events.size() == 1)
            source->ParseLine("N0BBB>APRS42:>092345zinner");
        else if (sink.events.size() == 2)
            source.reset();
    };
    source->ParseLine(kFourEvents);
    EXPECT_EQ(sink.events.size(), 2U);
}

TEST(FileReportSource, OutlivesAnEventThatRaises)
{
    RecordingSink sink;
    LineCounts counts;
    FileReportSource source(sink, counts);
    sink.onEvent = [] { throw Failure("abandoned"); };
    EXPECT_THROW(source.ParseLine(kFourEvents), Failure);
    sink.onEvent = [] {};
    source.ParseLine("N0AAA>APRS42:>Hi");
    EXPECT_EQ(sink.events.back(), "Status|N0AAA|APRS42||-1000|-1000|Hi");
}

TEST(FileReportSource, OtherChannelsMethodsFail)
{
    RecordingSink sink;
    LineCounts counts;
    FileReportSource source(sink, counts);
    EXPECT_THROW(source.OpenPort("COM1", 9600, kAccessToken), Failure);
    EXPECT_THROW(source.SendCommand("CONV"), Failure);
    EXPECT_THROW(source.GetUtcOffset(), Failure);
    EXPECT_THROW(source.ConnectSocket("localhost", 8000, kAccessToken), Failure);
    EXPECT_THROW(source.SendFrame("N0AAA", "APRS42", "", ">Hi"), Failure);
    EXPECT_THROW(source.ConnectServer("localhost", 14580, kAccessToken), Failure);
    EXPECT_THROW(source.SendServerLine("x"), Failure);
    EXPECT_TRUE(sink.events.empty());
}

} // namespace
} // namespace ruvenmark
