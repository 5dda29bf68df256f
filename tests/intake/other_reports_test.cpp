#include "support/test_program.h"

#include <gmock/gmock.h>

#include <limits>
#include <tuple>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kReceived = "Received: 2026-11-22 20:15:03";

class OtherReports : public testing::Test {
protected:
    IReportSink& Rf() { return p.Sink(Channel::RF); }
    std::string Recorded(Field field) { return p.RecordText(Channel::RF, "N0CALL", field); }

    TestProgram p;
};

TEST_F(OtherReports, AStatusItsCapabilitiesAndInfoShareOneNode)
{
    Rf().ReportStatus({"N0CALL", "APRS", "WIDE1-1", kNoPosition, kNoPosition, "on air"});
    EXPECT_THAT(p.ChildTexts("RFStatusN0CALL"), ElementsAre("on air", "Path: WIDE1-1", kReceived));
    EXPECT_EQ(p.Image("RFStatusN0CALL"), "Report");
    EXPECT_EQ(p.Image("RFStatusN0CALLStatus"), "Info");

    p.clock.Advance(std::chrono::seconds(7));
    Rf().ReportCapabilities({"N0CALL", "APRS", "WIDE2-2", "IGATE,MSG_CNT=3"});
    EXPECT_EQ(p.Text("RFStatusN0CALLPath"), "Path: WIDE2-2");
    EXPECT_EQ(Recorded(Field::StatusPath), "WIDE2-2");
    Rf().ReportInfo({"N0CALL", "APRS", "TCPIP*", "T#005"});
    EXPECT_THAT(p.ChildTexts("RFStatusN0CALL"),
                ElementsAre("on air", "Path: TCPIP*", "Received: 2026-11-22 20:15:10", "IGATE,MSG_CNT=3", "T#005"));
    EXPECT_EQ(p.Text("RFStatus"), "Status (1)");
    for (const auto& [field, text] : {std::pair(Field::Status, "on air"),
                                      {Field::Capabilities, "IGATE,MSG_CNT=3"},
                                      {Field::Info, "T#005"},
                                      {Field::StatusPath, "TCPIP*"},
                                      {Field::StatusReceived, "2026-11-22 20:15:10"}})
        EXPECT_EQ(Recorded(field), text);
    EXPECT_THAT(p.MarkerNames(), IsEmpty());
}

TEST_F(OtherReports, StatusTimesAreSpelledPieceByPiece)
{
    const std::tuple<int, int, int, const char*> kTimes[] = {{31, 23, 59, "(DMH)31:23:59 z"},
                                                             {9, 0, 5, "(DMH)09:00:05 z"},
                                                             {-1, -1, -1, "(DHM)00:00:00 z"},
                                                             {0, -7, 10, "(DMH)00:00:10 z"}};
    for (const auto& [day, hour, minute, text] : kTimes) {
        Rf().ReportStatusTime({"N0CALL", "APRS", day, hour, minute, "z"});
        EXPECT_EQ(p.Text("RFStatusN0CALLTime"), text);
        EXPECT_EQ(Recorded(Field::StatusTime), text);
    }
    EXPECT_EQ(p.Image("RFStatusN0CALLTime"), "Clock");
    EXPECT_EQ(Recorded(Field::Status), "(not set)");
}

TEST_F(OtherReports, TimesNameTheirFormAndFolder)
{
    struct Row {
        std::int32_t month, day, hour, minute, second;
        const char *folder, *text;
    };
    constexpr Row kRows[] = {
        {-1, 9, 23, 45, -1, "Positions", "(DHM)09:23:45 UTC"},
        {3, -1, 1, 2, -1, "Positions", "(DHM)00:01:02 UTC"}, // A month alone is enough for this form.
        {-1, -1, 23, 4, 5, "Positions", "(HMS)23:04:05 UTC"},
        {10, 9, 23, 45, -1, "Weather", "(MDHM)10:09:23:45 UTC"},
        {1, 2, 3, 4, 5, "Elsewhere", "(no node)"}};
    for (const auto& [month, day, hour, minute, second, folder, text] : kRows) {
        Rf().ReportTime({"N0CALL", "APRS", 1, 2, month, day, hour, minute, second, "UTC", folder});
        EXPECT_EQ(p.Text("RF" + std::string(folder) + "N0CALLTime"), text);
    }
    EXPECT_EQ(Recorded(Field::PositionTime), "(HMS)23:04:05 UTC");
    EXPECT_EQ(Recorded(Field::WeatherTime), "(MDHM)10:09:23:45 UTC");
    EXPECT_EQ(p.Text("RF"), "RF reports (2)"); // One node in each folder.
}

TEST_F(OtherReports, WeatherShowsWhatIsGivenAndKeepsWhatWas)
{
    Rf().ReportWeather({"N0CALL", "APRS", "WIDE1-1", 1, 2, 0, 0.5, -40, 0, 100, 1013.2});
    const auto shown = [&](const char* path, const char* received) {
        return ElementsAre("Wind Direction: 0°", "Gust: 0.5 mph", "Temperature: -40°F", "Rain (last 24hr): 0 inches",
                           "Humidity: 100%", "Pressure: 1013.2 mBar", path, received);
    };
    EXPECT_THAT(p.ChildTexts("RFWeatherN0CALL"), shown("Path: WIDE1-1", kReceived));
    EXPECT_EQ(p.Image("RFWeatherN0CALL"), "Weather");
    EXPECT_EQ(p.Image("RFWeatherN0CALLHumidity"), "Water");
    EXPECT_EQ(p.Text("RFWeather"), "Weather (1)");

    p.clock.Advance(std::chrono::seconds(1));
    Rf().ReportWeather({"N0CALL", "APRS", "", kNoPosition, kNoPosition}); // All values absent.
    EXPECT_THAT(p.ChildTexts("RFWeatherN0CALL"), shown("Path: ", "Received: 2026-11-22 20:15:04"));
    EXPECT_EQ(Recorded(Field::Pressure), "1013.2");
    EXPECT_EQ(Recorded(Field::WeatherPath), "WIDE1-1"); // An empty path is not recorded.
    EXPECT_EQ(Recorded(Field::WeatherReceived), "2026-11-22 20:15:04");
}

// Units are converted and counted in binary on the way: no tail of digits may show.
TEST_F(OtherReports, WeatherFiguresAreShort)
{
    p.Hear("N0CALL>APRS,TCPIP*:$ULTW005000CC030F0000276BFFEF85D70001028300A500060000003C");
    EXPECT_THAT(p.ChildTexts("FLWeatherN0CALL"), testing::IsSupersetOf({"Gust: 4.97 mph", "Temperature: 78.3°F"}));
}

// A weather packet with a position is a marker by its position report; the weather reaches no note.
TEST_F(OtherReports, WeatherTouchesNoMarker)
{
    p.Hear(Channel::RF, "N0CALL>APRS:!4903.50N/07201.75W_220/004g005t077r000p000P000h50b09900");
    EXPECT_EQ(p.Text("RFWeatherN0CALLTemperature"), "Temperature: 77°F");
    EXPECT_EQ(p.Image("RFPositionsN0CALL"), "Weather");
    EXPECT_EQ(p.Marker("N0CALL(r)")->Symbol(), 250);
    const std::string note = p.Note("N0CALL(r)");
    p.clock.Advance(std::chrono::seconds(60));
    p.Hear(Channel::RF, "N0CALL>APRS:_10090556c220s004g005t070r000p000P000h50b09900");
    EXPECT_EQ(Recorded(Field::Temperature), "70");
    EXPECT_EQ(Recorded(Field::WeatherTime), "(MDHM)10:09:05:56 UTC");
    EXPECT_EQ(p.Note("N0CALL(r)"), note);
}

TEST_F(OtherReports, StationDataGiveTheRange)
{
    p.Position(Channel::RF, "N0CALL", 1, 2);
    Rf().ReportDataExt({"N0CALL", "APRS", 1, 2, 50, 20, 3, "45"});
    EXPECT_THAT(p.ChildTexts("RFPositionsN0CALL"),
                testing::IsSupersetOf({"Power: 50 watts", "Height: 20 feet", "Gain: 3 db", "Directivity: 45"}));
    EXPECT_EQ(p.Image("RFPositionsN0CALLPower"), "Volumn");
    EXPECT_EQ(p.Image("RFPositionsN0CALLHeight"), "Up");
    EXPECT_THAT(p.Note("N0CALL(r)"), testing::EndsWith("\r\n50 watts, 20 ft, 3 db, 45"));
    const auto& ranges = p.main.Of(Channel::RF).StationRanges;
    EXPECT_NEAR(*ranges.Find("N0CALL"), 9.45, 0.005);

    // No range in it: the old one stays, the rest is filed. A range of nothing ends the report ahead of its record,
    // behind its nodes.
    Rf().ReportDataExt({"N0CALL", "APRS", 1, 2, 10, 30, kAbsentLong, ""});
    Rf().ReportDataExt({"N0CALL", "APRS", 1, 2, 0, 40, 6, "90"});
    EXPECT_NEAR(*ranges.Find("N0CALL"), 9.45, 0.005);
    EXPECT_EQ(p.Text("RFPositionsN0CALLHeight"), "Height: 40 feet");
    EXPECT_THAT(p.Note("N0CALL(r)"), testing::EndsWith("\r\n10 watts, 30 ft, 3 db, 45"));
    Rf().ReportDataExt({"N1CALL", "APRS", 1, 2, 0, 40, 6, ""});
    EXPECT_EQ(p.RecordText(Channel::RF, "N1CALL", Field::Call), "(no record)");
    EXPECT_EQ(p.Text("RF"), "RF reports (2)");

    constexpr auto kMost = std::numeric_limits<std::int32_t>::max(); // No overflow on the way.
    Rf().ReportDataExt({"N2CALL", "APRS", 1, 2, kMost, kMost, 9, ""});
    EXPECT_GT(*ranges.Find("N2CALL"), 1e6);
}

TEST_F(OtherReports, UndecodedPacketsAreKeptOnlyWhereWanted)
{
    p.Hear(Channel::RF, "no packet at all");
    EXPECT_EQ(p.Text("RFUnknown"), "Unknown");
    p.main.Of(Channel::RF).bShowUnknown = true;
    p.main.Of(Channel::RF).Filter.bOn = true; // Packets pass no filter.
    p.main.Of(Channel::RF).Filter.Dest = "NONE";
    for (const char* line : {"no packet at all", "no packet at all", "another\xff"})
        p.Hear(Channel::RF, line);
    Rf().ReportPacket(""); // A packet of nothing would have the key of the folder itself.
    EXPECT_THAT(p.ChildTexts("RFUnknown"), ElementsAre("another\xff", "no packet at all"));
    EXPECT_EQ(p.Image("RFUnknownno packet at all"), "Question");
    EXPECT_EQ(p.Image("RFUnknown"), "Unknown");
    EXPECT_EQ(p.Text("RF"), "RF reports (2)");
    EXPECT_EQ(p.main.Of(Channel::RF).Stations.Count(), 0U);
}

// Every kind asks the filter first, those without a position with none.
TEST_F(OtherReports, EveryKindPassesTheFilter)
{
    auto& filter = p.main.Of(Channel::RF).Filter;
    filter.bOn = filter.bApply = true; // Without a usable position: out.
    filter.Range = "10", filter.Lat = "1", filter.Lon = "2";
    const auto raise = [&](double lat) {
        p.Position(Channel::RF, "N0CALL", lat, 2);
        Rf().ReportPosExt({.call = "N0CALL", .dest = "APRS", .lat = lat, .lon = 2, .altitude = 1});
        Rf().ReportDataExt({"N0CALL", "APRS", lat, 2, 1, 1, 1, ""});
        Rf().ReportStatus({"N0CALL", "APRS", "", lat, 2, "x"});
        Rf().ReportTime({"N0CALL", "APRS", lat, 2, 1, 2, 3, 4, 5, "", "Positions"});
        Rf().ReportWeather({"N0CALL", "APRS", "", lat, 2});
        Rf().ReportObjectItem({"N0CALL", "APRS", lat, 2, "S", 1});
        Rf().ReportStatusTime({"N0CALL", "APRS", 1, 2, 3, "z"});
        Rf().ReportCapabilities({"N0CALL", "APRS", "", "x"});
        Rf().ReportInfo({"N0CALL", "APRS", "", "x"});
    };
    raise(60);
    EXPECT_EQ(p.main.Of(Channel::RF).Stations.Count(), 0U);
    EXPECT_EQ(p.Text("RF"), "RF reports");
    EXPECT_THAT(p.MarkerNames(), IsEmpty());
    raise(1); // Each in its own right: none of them is without a position.
    EXPECT_EQ(p.Text("RF"), "RF reports (3)");
    for (const Field field : {Field::Lat, Field::Alt, Field::Power, Field::Status, Field::PositionTime,
                              Field::WeatherReceived, Field::Sender})
        EXPECT_NE(Recorded(field), "(not set)") << FieldName(field);
    const auto placeless = {Field::StatusTime, Field::Capabilities, Field::Info};
    for (const Field field : placeless)
        EXPECT_EQ(Recorded(field), "(not set)") << FieldName(field);
    filter.bApply = false;
    raise(60);
    for (const Field field : placeless)
        EXPECT_NE(Recorded(field), "(not set)") << FieldName(field);
}

using ObjectReports = OtherReports;

// Its picture is that of its position report; the object report counts it but has none of its own.
TEST_F(ObjectReports, CountTheirObjectAndLeaveItsPicture)
{
    for (const char* image : {"", "House"}) {
        Rf().ReportObjectItem({"OBJ", "APRS", 1, 2, "N0CALL", 1});
        EXPECT_EQ(p.Text("RF"), "RF reports (1)");
        EXPECT_EQ(p.Image("RFPositionsOBJ"), image);
        p.Position(Channel::RF, "OBJ", 1, 2, "House");
    }
    EXPECT_EQ(p.Image("RFPositionsOBJSender"), "Sender");
    EXPECT_EQ(p.Image("RFPositionsOBJState"), "State");
}

TEST_F(ObjectReports, ACancelledObjectLeavesTheMapButNotTheTree)
{
    p.Hear(Channel::RF, "N0CALL>APRS:;LEADER   *092345z4930.00N/07201.75W>test");
    EXPECT_TRUE(p.Marker("LEADER(r)"));
    EXPECT_EQ(p.Text("RFPositionsLEADERSender"), "Sender: N0CALL");
    EXPECT_EQ(p.Text("RFPositionsLEADERState"), "Valid");
    EXPECT_EQ(p.RecordText(Channel::RF, "LEADER", Field::Sender), "N0CALL");
    p.Position(Channel::RF, "N0CALL", 1, 2);

    p.Hear(Channel::RF, "N1CALL>APRS:;LEADER   _092345z4903.50N/07201.75W>test");
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(r)"));
    EXPECT_EQ(p.Text("RFPositionsLEADERState"), "Cancelled");
    EXPECT_EQ(p.Text("RFPositionsLEADERLat"), "Lat: 49.5°");
    EXPECT_EQ(p.RecordText(Channel::RF, "LEADER", Field::Sender), "N1CALL");
}

TEST_F(ObjectReports, OnlyStateNullDeletesAndOnlyTheChannelsOwnMarker)
{
    p.Position(Channel::RF, "OBJ", 1, 2);
    const auto stands = [&](std::int32_t state, const char* note) {
        p.Marker("OBJ(r)")->SetNote(note);
        Rf().ReportObjectItem({"OBJ", "APRS", 1, 2, "N0CALL", state});
        EXPECT_EQ(p.Text("RFPositionsOBJState"), "Cancelled");
        return p.Marker("OBJ(r)").has_value();
    };
    EXPECT_TRUE(stands(2, "RF"));
    EXPECT_TRUE(stands(0, "TCP, of another channel"));
    EXPECT_FALSE(stands(0, "RF"));

    // Objects are filtered under their name, not their sender's.
    p.main.Of(Channel::RF).Filter.bOn = true;
    p.main.Of(Channel::RF).Filter.Reject = "OBJ";
    Rf().ReportObjectItem({"OBJ", "APRS", 1, 2, "N9CALL", 1});
    EXPECT_EQ(p.RecordText(Channel::RF, "OBJ", Field::Sender), "N0CALL");
    Rf().ReportObjectItem({"SAFE", "APRS", 1, 2, "OBJ", 1});
    EXPECT_EQ(p.RecordText(Channel::RF, "SAFE", Field::Sender), "OBJ");
}

// An object's failure goes to its record; every other report's ends it.
TEST_F(ObjectReports, WithoutAFolderOnlyAnObjectIsRecorded)
{
    IReportSink& fl = p.Sink(Channel::FL); // Its tree comes with the first file.
    fl.ReportObjectItem({"OBJ", "APRS", 1, 2, "N0CALL", 1});
    fl.ReportPos({"N0CALL", "APRS", "", 1, 2, "Car", ""});
    fl.ReportStatus({"N0CALL", "APRS", "", 1, 2, "x"});
    EXPECT_EQ(p.RecordText(Channel::FL, "OBJ", Field::Sender), "N0CALL");
    EXPECT_EQ(p.main.Of(Channel::FL).Stations.Count(), 1U);
    EXPECT_EQ(p.Text("FL"), "(no node)");
}

} // namespace
} // namespace ruvenmark
