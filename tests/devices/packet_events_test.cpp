#include "aprs/decode.h"
#include "devices/packet_events.h"
#include "recording_sink.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using Events = std::vector<std::string>;

Events EventsOf(std::string_view line, RawData rawData = RawData::No)
{
    RecordingSink sink;
    const bool bStopped = false;
    RaisePacketEvents(aprs::Decode(line), rawData, sink, bStopped);
    return sink.events;
}

struct Case {
    std::string_view line;
    Events events;
};

void Check(const std::vector<Case>& cases)
{
    for (const Case& test : cases)
        EXPECT_EQ(EventsOf(test.line), test.events) << test.line;
}

TEST(PacketEvents, PositionsAndTheirCompanionsInOrder)
{
    Check({
        {"N0AAA>APRS42,WIDE1-1:!4930.00N/07230.00W-Home", {"Pos|N0AAA|APRS42|WIDE1-1|49.5|-72.5|House|Home"}},
        {"N0AAA>APRS42:@092345z4930.00N/07230.00W>088/036/A=001000",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Car|", "PosExt|N0AAA|APRS42|49.5|-72.5|1000|36|88",
          "Time|N0AAA|APRS42|49.5|-72.5|-|9|23|45|-|UTC|Positions"}},
        {"N0AAA>APRS42:/234517h4930.00N/07230.00W#PHG5132 x",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Digi|x", "DataExt|N0AAA|APRS42|49.5|-72.5|25|20|3|90",
          "Time|N0AAA|APRS42|49.5|-72.5|-|-|23|45|17|UTC|Positions"}},
        {"N0AAA>APRS42:/092345/4930.00N/07230.00W#PHG0000",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Digi|", "DataExt|N0AAA|APRS42|49.5|-72.5|0|10|0|Omni",
          "Time|N0AAA|APRS42|49.5|-72.5|-|9|23|45|-|local|Positions"}},
        // Standing still is a speed; an unknown course is none.
        {"N0AAA>APRS42:!4930.00N/07230.00W>000/000",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Car|", "PosExt|N0AAA|APRS42|49.5|-72.5|-|0|-"}},
        // A clock that is wrong costs nothing but the time.
        {"N0AAA>APRS42:@322561z4930.00N/07230.00W-", {"Pos|N0AAA|APRS42||49.5|-72.5|House|"}},
        // What was cut out of the comment's middle leaves no hole.
        {"N0AAA>APRS42:!4930.00N/07230.00W-left/A=000010 right|ss11| end",
         {"Pos|N0AAA|APRS42||49.5|-72.5|House|left right end", "PosExt|N0AAA|APRS42|49.5|-72.5|10|-|-"}},
        {"N0AAA>APRS42:[IO91SX]hut", {"Pos|N0AAA|APRS42||51.98|-0.46|Default|hut"}},
    });
}

TEST(PacketEvents, NmeaTakesTheSymbolFromDestinationOrSsid)
{
    Check({
        {"N0AAA>GPSLK:$GPGLL,4930.00,N,07230.00,W", {"Pos|N0AAA|GPSLK||49.5|-72.5|Truck|"}},
        {"N0AAA-7>APRS42:$GPGLL,4930.00,N,07230.00,W", {"Pos|N0AAA-7|APRS42||49.5|-72.5|Plane|"}},
        {"N0AAA>APRS42:$GPRMC,145526,A,4930.00,N,07230.00,W,20,90.0,121207",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Default|", "PosExt|N0AAA|APRS42|49.5|-72.5|-|20|90"}},
    });
}

TEST(PacketEvents, Weather)
{
    Check({
        // The gust is the one wind shown; the rain is that of the last 24 hours.
        {"N0AAA>APRS42:@092345z4930.00N/07230.00W_220/004g005t077r001p002P003h50b09900wXYZ",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Weather|wXYZ", "Time|N0AAA|APRS42|49.5|-72.5|-|9|23|45|-|UTC|Positions",
          "Weather|N0AAA|APRS42||49.5|-72.5|220|5|77|0.02|50|990"}},
        {"N0AAA>APRS42:!4930.00N/07230.00W_220/004t077P003",
         {"Pos|N0AAA|APRS42||49.5|-72.5|Weather|", "Weather|N0AAA|APRS42||49.5|-72.5|220|4|77|0.03|-|-"}},
        // Whatever the symbol's table; and the wind is no movement.
        {"N0AAA>APRS42:=N5L!!<*e7_7P[g010t054",
         {"Pos|N0AAA|APRS42||49.5|-72.75|Weather|", "Weather|N0AAA|APRS42||49.5|-72.75|88|10|54|-|-|-"}},
        {"N0AAA>APRS42:_10090556c220s004t...h50",
         {"Weather|N0AAA|APRS42||-1000|-1000|220|4|-|-|50|-", "Time|N0AAA|APRS42|-1000|-1000|10|9|5|56|-|UTC|Weather"}},
        {"N0AAA>APRS42:!4930.00N/07230.00W_Home", {"Pos|N0AAA|APRS42||49.5|-72.5|Weather|Home"}},
    });
}

TEST(PacketEvents, ObjectsAndItems)
{
    Check({
        {"N0AAA>APRS42:;LEADER 1 *092345z4930.00N/07230.00W>088/036go",
         {"Pos|LEADER 1|APRS42||49.5|-72.5|Car|go", "PosExt|LEADER 1|APRS42|49.5|-72.5|-|36|88",
          "Time|LEADER 1|APRS42|49.5|-72.5|-|9|23|45|-|UTC|Positions",
          "ObjectItem|LEADER 1|APRS42|49.5|-72.5|N0AAA|1"}},
        {"N0AAA>APRS42:;LEADER 1 _092345z4930.00N/07230.00W>088/036go",
         {"ObjectItem|LEADER 1|APRS42|49.5|-72.5|N0AAA|0"}},
        // The mark of an object that stands for good is no time.
        {"N0AAA>APRS42:;REPEATER *111111z4930.00N/07230.00Wr",
         {"Pos|REPEATER|APRS42||49.5|-72.5|Antenna|", "ObjectItem|REPEATER|APRS42|49.5|-72.5|N0AAA|1"}},
        {"N0AAA>APRS42:)AID!4930.00N\\07230.00WM",
         {"Pos|AID|APRS42||49.5|-72.5|FirstAid|", "ObjectItem|AID|APRS42|49.5|-72.5|N0AAA|1"}},
        {"N0AAA>APRS42:;WX 7     *111111z4930.00N/07230.00W_220/004g005t077",
         {"Pos|WX 7|APRS42||49.5|-72.5|Weather|", "Weather|WX 7|APRS42||49.5|-72.5|220|5|77|-|-|-",
          "ObjectItem|WX 7|APRS42|49.5|-72.5|N0AAA|1"}},
        // Without a name there is nothing to file it under.
        {"N0AAA>APRS42:;         *111111z4930.00N/07230.00Wr",
         {"Packet|N0AAA>APRS42:;         *111111z4930.00N/07230.00Wr"}},
    });
}

TEST(PacketEvents, StatusCapabilitiesAndInformation)
{
    Check({
        {"N0AAA>APRS42:>Net control", {"Status|N0AAA|APRS42||-1000|-1000|Net control"}},
        {"N0AAA>APRS42,W*:>092345zNet",
         {"Status|N0AAA|APRS42|W*|-1000|-1000|Net", "StatusTime|N0AAA|APRS42|9|23|45|UTC"}},
        {"N0AAA>APRS42:>IO91SX/- hut", {"Status|N0AAA|APRS42||51.98|-0.46|IO91SX/- hut"}},
        {"N0AAA>APRS42:<IGATE,MSG_CNT=1", {"Capabilities|N0AAA|APRS42||IGATE,MSG_CNT=1"}},
        {"N0AAA>APRS42:T#005,1,2,3,4,5,00000000", {"Info|N0AAA|APRS42||T#005,1,2,3,4,5,00000000"}},
        {"N0AAA>APRS42::N0AAA    :PARM.Vin", {"Info|N0AAA|APRS42||:N0AAA    :PARM.Vin"}},
        {"N0AAA>APRS42:?APRS?", {"Info|N0AAA|APRS42||?APRS?"}},
        {"N0AAA>APRS42:{Qxdata", {"Info|N0AAA|APRS42||{Qxdata"}},
        {"N0AAA>APRS42:,test", {"Info|N0AAA|APRS42||,test"}},
    });
}

TEST(PacketEvents, Messages)
{
    Check({
        {"N0AAA>APRS42,W*::N0BBB    :Hello{12", {"AprsMsg|N0AAA|APRS42|W*|N0BBB|Hello|12"}},
        {"N0AAA>APRS42::BLN1     :Net", {"AprsMsg|N0AAA|APRS42||BLN1|Net|"}},
        {"N0AAA>APRS42::N0BBB    :ack12", {"AprsMsg|N0AAA|APRS42||N0BBB|ack12|"}},
        {"N0AAA>APRS42::N0BBB    :rej12", {"AprsMsg|N0AAA|APRS42||N0BBB|rej12|"}},
        {"N0AAA>APRS42::N0BBB    :ackAB}CD", {"AprsMsg|N0AAA|APRS42||N0BBB|ackAB|"}},
        {"N0AAA>APRS42::N0BBB    :Hello{AB}", {"AprsMsg|N0AAA|APRS42||N0BBB|Hello|AB"}},
        // A reply that acknowledges is a message and an acknowledgement.
        {"N0AAA>APRS42::N0BBB    :Hello{AB}CD",
         {"AprsMsg|N0AAA|APRS42||N0BBB|Hello|AB", "AprsMsg|N0AAA|APRS42||N0BBB|ackCD|"}},
        {"N0AAA>APRS42::N0BBB    :?APRSP", {"AprsMsg|N0AAA|APRS42||N0BBB|?APRSP|"}},
    });
}

TEST(PacketEvents, ThirdPartyIsRaisedUnderTheInnerStation)
{
    Check({
        {"N0GATE>APRS42,WIDE1-1:}N0BBB>APRS43,TCPIP,N0GATE*:!4930.00N/07230.00W-",
         {"Pos|N0BBB|APRS43|TCPIP,N0GATE*|49.5|-72.5|House|"}},
        {"N0GATE>APRS42:}junk !4930.00N/07230.00W-", {"Packet|N0GATE>APRS42:}junk !4930.00N/07230.00W-"}},
    });
}

TEST(PacketEvents, RawDataComesFirstAndOnlyWhereAsked)
{
    const std::string_view line = "N0AAA>APRS42:>Hi";
    EXPECT_EQ(EventsOf(line, RawData::Yes),
              (Events{"RawData|N0AAA>APRS42:>Hi", "Status|N0AAA|APRS42||-1000|-1000|Hi"}));
    EXPECT_EQ(EventsOf("junk", RawData::Yes), (Events{"RawData|junk", "Packet|junk"}));
    EXPECT_EQ(EventsOf("junk"), (Events{"Packet|junk"}));
}

// The tree, the lists and the files are written line by line: one such byte in a text would tear them.
TEST(PacketEvents, NoLineEndOrNulReachesAText)
{
    const auto line = [](std::string_view info) {
        std::string text = "N0AAA>APRS42:";
        for (const char c : info)
            text += c == '0' ? '\0' : c == 'R' ? '\r' : c == 'N' ? '\n' : c;
        return text;
    };
    for (const std::string_view info : {">a0bRcNd", ":X        :a0bRcNd", "<a0bRcNd", "{Qa0bRcNd", "a0bRcNd"}) {
        const std::string text = line(info);
        for (const std::string& event : EventsOf(text, RawData::Yes))
            EXPECT_EQ(event.find_first_of(std::string_view("\r\n\0", 3)), std::string::npos) << info;
        EXPECT_TRUE(EventsOf(text).back().find("abcd") != std::string::npos) << info;
    }
    constexpr char kPosition[] = "N0AAA>APRS42:!4930.00N/07230.00W-a\0b/A=000010c\rd";
    const std::string position(kPosition, sizeof(kPosition) - 1);
    EXPECT_EQ(EventsOf(position).front(), "Pos|N0AAA|APRS42||49.5|-72.5|House|abcd");
    EXPECT_EQ(EventsOf(std::string(2000, '\r') + "x").front(), "Packet|x");
}

} // namespace
} // namespace ruvenmark
