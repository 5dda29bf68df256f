#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;

class ObjectReports : public testing::Test {
protected:
    IReportSink& Rf() { return p.Sink(Channel::RF); }

    TestProgram p;
};

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
    Rf().ReportObjectItem({"OBJ", "APRS", 1, 2, "N0CALL", 2});
    EXPECT_EQ(p.Text("RFPositionsOBJState"), "Cancelled");
    EXPECT_TRUE(p.Marker("OBJ(r)"));

    Pushpin pin = *p.Marker("OBJ(r)");
    pin.SetNote("TCP, of another channel");
    Rf().ReportObjectItem({"OBJ", "APRS", 1, 2, "N0CALL", 0});
    EXPECT_TRUE(p.Marker("OBJ(r)"));
    pin.SetNote("RF");
    Rf().ReportObjectItem({"OBJ", "APRS", 1, 2, "N0CALL", 0});
    EXPECT_FALSE(p.Marker("OBJ(r)"));

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
