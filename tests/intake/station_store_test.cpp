#include "core/station_record.h"
#include "map/range_circles.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

using Plain = std::vector<std::pair<Field, std::string>>;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Counts, AddUpTheFourFoldersAndGoBackToThePlainLabel)
{
    TestProgram p;
    p.main.Of(Channel::TCP).bShowUnknown = true;
    p.Position(Channel::TCP, "A", 1, 2);
    p.Position(Channel::TCP, "B", 1, 2);
    p.Hear(Channel::TCP, "A>APRS:>status");
    p.Hear(Channel::TCP, "A>APRS:_10090556c220s004g005t070r000p000P000h50b09900");
    p.Hear(Channel::TCP, "what?");
    EXPECT_THAT(p.ChildTexts("TCP"), ElementsAre("Positions (2)", "Status (1)", "Weather (1)", "Unknown (1)"));
    EXPECT_EQ(p.Text("TCP"), "TCP reports (5)");
    for (const auto& [call, folder] : {std::pair("A", kPositions), std::pair("B", kPositions), std::pair("A", kStatus),
                                       std::pair("A", kWeather), std::pair("what?", kUnknown)})
        RemoveStation(p.main, Channel::TCP, call, folder);
    EXPECT_THAT(p.ChildTexts("TCP"), ElementsAre("Positions", "Status", "Weather", "Unknown"));
    EXPECT_EQ(p.Text("TCP"), "TCP reports");
}

// The sum is a 16-bit number; past that the root keeps its text, and nothing else suffers.
TEST(Counts, TheRootStopsAtSixteenBitsAndTheReportGoesOn)
{
    TestProgram p;
    p.main.Of(Channel::TCP).bShowUnknown = true;
    for (int i = 0; i < 32768; ++i)
        p.Sink(Channel::TCP).ReportPacket(std::to_string(i));
    p.Position(Channel::TCP, "N0CALL", 1, 2);
    EXPECT_EQ(p.Text("TCP"), "TCP reports (32767)");
    EXPECT_THAT(p.ChildTexts("TCP"), ElementsAre("Positions (1)", "Status", "Weather", "Unknown (32768)"));
    EXPECT_THAT(p.Note("N0CALL(t)"), testing::StartsWith("TCP, "));
    EXPECT_TRUE(p.main.abandoned.IsEmpty());
}

class FullStation : public testing::Test {
protected:
    FullStation()
    {
        for (const Channel channel : {Channel::RF, Channel::TCP}) {
            SetTrackList(p.main.Of(channel), "N0CALL");
            p.Position(channel, "N0CALL", 1, 2);
            p.Position(channel, "N0CALL", 3, 4);
            p.Sink(channel).ReportStatus({"N0CALL", "APRS", "", 1, 2, "x"});
            p.Sink(channel).ReportDataExt({"N0CALL", "APRS", 1, 2, 50, 20, 3, ""});
            p.Select(std::string(Traits(channel).word) + "PositionsN0CALL");
            mnuShowRange_Click(p.main);
        }
    }
    std::size_t ShapeCount() { return p.TheMap().Shapes().Count(); }

    TestProgram p;
};

TEST_F(FullStation, RemovedFromPositionsLosesAllItHadOnTheMap)
{
    ASSERT_EQ(ShapeCount(), 4U); // A line and a circle each.
    RemoveStation(p.main, Channel::RF, "N0CALL", kPositions);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
    EXPECT_EQ(ShapeCount(), 2U);
    const ChannelState& rf = p.main.Of(Channel::RF);
    EXPECT_EQ(rf.StationRanges.Count() + rf.RangeCircles.Count() + rf.Stations.Count() + rf.TrackMarkers.Count() +
                  rf.TrackLines.Count(),
              0U);
    EXPECT_TRUE(rf.Tracked.Contains("N0CALL")); // Still wanted.
    EXPECT_THAT(p.ChildTexts("RFPositions"), IsEmpty());
    EXPECT_EQ(p.Text("RFStatusN0CALL"), "N0CALL");
    EXPECT_EQ(p.Text("RF") + ", " + p.Text("TCP"), "RF reports (1), TCP reports (2)");
    EXPECT_EQ(p.Tree().Selected()->Key(), "TCPPositionsN0CALL");
}

TEST_F(FullStation, RemovedFromAnotherFolderKeepsItsPlaceOnTheMap)
{
    RemoveStation(p.main, Channel::RF, "N0CALL", kStatus);
    EXPECT_EQ(p.RecordText(Channel::RF, "N0CALL", Field::Lat), "(no record)"); // The record goes with either node.
    EXPECT_TRUE(p.Marker("N0CALL(r)"));
    EXPECT_TRUE(p.main.Of(Channel::RF).StationRanges.Contains("N0CALL"));
    EXPECT_EQ(ShapeCount(), 4U);
    EXPECT_THAT(p.ChildTexts("RF"), ElementsAre("Positions (1)", "Status", "Weather", "Unknown"));
}

TEST_F(FullStation, RemovalGoesOnPastWhatIsGone)
{
    p.Marker("N0CALL(r)")->SetNote("TCP, of another channel");
    RemoveStation(p.main, Channel::RF, "N0CALL", kPositions);
    EXPECT_TRUE(p.Marker("N0CALL(r)")); // Not the channel's own.

    p.main.mpCtrl.NewMap(kRegionEurope); // Points, lines and circle are dead now.
    RemoveStation(p.main, Channel::TCP, "N0CALL", kPositions);
    EXPECT_EQ(p.main.Of(Channel::TCP).TrackMarkers.Count() + p.main.Of(Channel::TCP).RangeCircles.Count(), 0U);
    EXPECT_EQ(p.Text("TCPPositions"), "Positions");
    RemoveStation(p.main, Channel::FL, "N0CALL", kPositions); // Never heard there, nor is there a tree.
    EXPECT_EQ(p.Text("FL"), "(no node)");
}

TEST_F(FullStation, ClearingAChannelLeavesTheOthers)
{
    Pushpin viewed = p.TheMap().AddPushpin(p.TheMap().GetLocation(5, 6), "of a folder that is gone");
    viewed.SetNote("RF, long ago");
    p.TheMap().AddPushpin(p.TheMap().GetLocation(5, 6), "N9CALL"); // The own station's has no note.
    ClearChannelReports(p.main, Channel::RF);
    ClearChannelReports(p.main, Channel::FL); // Nothing was ever loaded.
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)", "N9CALL"));
    EXPECT_EQ(ShapeCount(), 2U);
    EXPECT_EQ(p.main.Of(Channel::RF).Stations.Count() + p.main.Of(Channel::RF).StationRanges.Count(), 0U);
    std::string roots;
    for (const auto& root : p.Tree().Roots())
        roots += std::string(root->Text()) + '|';
    EXPECT_EQ(roots, std::string(p.Text("My")) + "|RF reports|TCP reports (2)|");
    EXPECT_THAT(p.ChildTexts("RF"), ElementsAre("Positions", "Status", "Weather", "Unknown"));
    EXPECT_TRUE(p.Node("RFStatus")->IsSorted() && p.Node("RFStatus")->IsBold());
    p.Position(Channel::RF, "N0CALL", 1, 2); // And on it goes.
    EXPECT_EQ(p.Text("RF"), "RF reports (1)");
}

// A record beside a plain list of what it should hold: values of the same size and of another, parts of the record
// itself, many at once.
TEST(Record, RandomEditsAsAListHasThem)
{
    std::mt19937 random(8);
    const auto anyField = [&] { return static_cast<Field>(random() % kFieldNames.size()); };
    const auto anyText = [&] { // Of sizes on both sides of what one byte can tell.
        const std::size_t size = random() % 8 == 0 ? random() % 600 : random() % 20;
        return std::string(size, static_cast<char>(random()));
    };
    for (int round = 0; round < 200; ++round) {
        Record record;
        Plain plain;
        const auto note = [&](Field field, const std::string& text) {
            const auto at = std::find_if(plain.begin(), plain.end(), [&](const auto& e) { return e.first == field; });
            if (at == plain.end())
                plain.emplace_back(field, text);
            else
                at->second = text;
        };
        for (int i = 0; i < 100; ++i) {
            if (i % 3 == 0) { // As reports do it: in any order, one field twice too.
                Plain edits(random() % 7);
                std::vector<Record::Entry> values;
                for (auto& [field, text] : edits) {
                    field = anyField();
                    text = anyText();
                    values.push_back({field, text});
                }
                record.Set(values);
                for (const auto& [field, text] : edits)
                    note(field, text);
            } else if (!plain.empty() && random() % 5 == 0) {
                const auto [other, text] = plain[random() % plain.size()];
                const std::size_t from = random() % (text.size() + 1);
                const Field field = anyField();
                record.Set(field, record.Get(other).substr(from));
                note(field, text.substr(from));
            } else {
                const Field field = anyField();
                const std::string text = anyText();
                record.Set(field, text);
                note(field, text);
            }
            Plain held;
            for (const auto& [field, text] : record)
                held.emplace_back(field, text);
            ASSERT_EQ(held, plain);
        }
    }
}

} // namespace
} // namespace ruvenmark
