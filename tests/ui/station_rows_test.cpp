#include "outgoing/my_station.h"
#include "support/test_program.h"
#include "ui/station_rows.h"
#include "ui/station_tree_commands.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace ruvenmark {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::MatchesRegex;
using C = StationColumn;

// A list of the stations of a program that is in the Gulf of Guinea.
class StationList : public testing::Test {
protected:
    StationList()
    {
        SetSetting(program.main.Settings, Setting::Lat, "0");
        SetSetting(program.main.Settings, Setting::Lon, "0");
    }
    std::vector<std::string> Column(StationColumn column) const
    {
        std::vector<std::string> texts;
        for (std::size_t row = 0; row < rows.Count(); ++row)
            texts.push_back(rows.Text(rows.At(row), column));
        return texts;
    }
    void UpdateAll()
    {
        while (rows.Update()) {
        }
    }

    TestProgram program;
    StationRows rows{program.main};
};

// Without a report to come the miles would stay those of the former place.
TEST_F(StationList, ItsMilesFollowTheOwnStation)
{
    program.Position(Channel::RF, "N0CALL", 1, 0);
    UpdateAll();
    int told = 0;
    const auto subscription = rows.Due.Observe([&] { ++told; });
    program.Set("Call=N0CALL Lat=2");
    AddMyStationNode(program.main);
    EXPECT_EQ(told, 1);
    UpdateAll();
    EXPECT_THAT(Column(C::Bearing), ElementsAre("180°"));
}

// A report costs a mark, told once until it is taken in.
TEST_F(StationList, ListsWhatIsKnownOfAStation)
{
    UpdateAll();
    int told = 0;
    const auto subscription = rows.Due.Observe([&] { ++told; });
    for (const char* call : {"Z1", "Z2"})
        program.Position(Channel::RF, call, 40, 2);
    for (int i = 0; i < 10; ++i)
        program.Hear(Channel::TCP, "N0CALL-9>APRS,WIDE1-1*,qAR,N1GATE:!0100.00N/00000.00E>090/036on the road");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(rows.Count(), 0U);
    UpdateAll();
    ASSERT_EQ(rows.Count(), 3U);
    std::vector<std::string> texts;
    for (std::size_t column = 0; column < kStationColumns; ++column)
        texts.push_back(rows.Text(rows.At(0), static_cast<StationColumn>(column)));
    EXPECT_THAT(texts, ElementsAre("N0CALL-9", "Car", "TCP", "2026-11-22 20:15:03", "69.1 mi", "0°", "90°", "41 mph",
                                   "WIDE1-1*,qAR,N1GATE", "on the road"));
}

// What is not known would else stand before everything near, or jump with each turn of the order.
TEST_F(StationList, SortsByNumbersAndTextsWithTheUnknownAtTheEnd)
{
    for (const auto& [call, lat] : {std::pair("FAR", 20), {"near", 2}, {"NEAR-1", 9}})
        program.Position(Channel::RF, call, lat, 0);
    program.Sink(Channel::RF).ReportStatus({"NOWHERE", "APRS", "", kNoPosition, kNoPosition, "here"});
    UpdateAll();
    EXPECT_THAT(Column(C::Call), ElementsAre("FAR", "near", "NEAR-1", "NOWHERE"));
    rows.SortBy(C::Distance, true);
    EXPECT_THAT(Column(C::Call), ElementsAre("near", "NEAR-1", "FAR", "NOWHERE"));
    rows.SortBy(C::Distance, false);
    EXPECT_THAT(Column(C::Call), ElementsAre("FAR", "NEAR-1", "near", "NOWHERE"));
    rows.SortBy(C::Call, false);
    EXPECT_THAT(Column(C::Call), ElementsAre("NOWHERE", "NEAR-1", "near", "FAR"));
}

// All at once the window would stand still; and a report, a filter or another click in the midst must not mix the
// orders.
TEST_F(StationList, ManyAreSortedInPiecesWhileTheListStaysAsItIs)
{
    constexpr int kMany = 12000;
    for (int i = 0; i < kMany; ++i)
        program.Position(Channel::RF, "N" + std::to_string(i * 7919 % kMany), 1 + i % 80, 0, "Car",
                         "of the same beginning as all others " + std::to_string(i % 100));
    UpdateAll();
    const auto calls = Column(C::Call);
    ASSERT_TRUE(std::is_sorted(calls.begin(), calls.end()));
    rows.SortBy(C::Distance, false);
    rows.Update();
    rows.SortBy(C::Comment, false);
    program.Position(Channel::RF, "ZLAST", 1, 0, "Car", "zzz");
    EXPECT_TRUE(rows.Update());
    EXPECT_EQ(Column(C::Call), calls);
    UpdateAll();
    EXPECT_FALSE(rows.IsSorting());
    const auto comments = Column(C::Comment);
    ASSERT_EQ(comments.size(), calls.size() + 1);
    EXPECT_EQ(comments.front(), "zzz");
    EXPECT_TRUE(std::is_sorted(comments.rbegin(), comments.rend()));
    EXPECT_THAT(Column(C::Distance), Each(MatchesRegex("[0-9]+\\.[0-9] mi"))) << "one below the other";
}

TEST_F(StationList, FiltersByCallAgeAndRoad)
{
    program.Hear(Channel::RF, "DL1ABC>APRS,N0DIGI*:!4903.50N/07201.75W>");
    program.clock.Advance(std::chrono::minutes(30));
    program.Hear(Channel::RF, "DL2ABC-7>APRS,WIDE1-1:!4903.50N/07201.75W>");
    program.Hear(Channel::TCP, "N0CALL>APRS,TCPIP*,qAC,SERVER:!4903.50N/07201.75W>");
    program.Hear(Channel::FL, "W1AW>APRS,WIDE1-1,qAR,GATE:!4903.50N/07201.75W>");
    UpdateAll();
    const auto listed = [&](const StationListFilter& filter) {
        rows.SetFilter(filter);
        return Column(C::Call);
    };
    EXPECT_THAT(listed({"2abc"}), ElementsAre("DL2ABC-7"));
    EXPECT_THAT(listed({"dl*c n?call"}), ElementsAre("DL1ABC", "N0CALL"));
    EXPECT_THAT(listed({"", 15}), ElementsAre("DL2ABC-7", "N0CALL", "W1AW"));
    EXPECT_THAT(listed({"", 0, true}), ElementsAre("DL2ABC-7"));
    rows.SetFilter({"", 15});
    program.clock.Advance(std::chrono::minutes(20)); // They go by the time alone.
    UpdateAll();
    EXPECT_EQ(rows.Count(), 0U);
    EXPECT_EQ(rows.Total(), 4U);
}

// Whatever is heard, deleted, cleared and unloaded, and however it falls between the updates, the list is what the
// channels hold, in order, and every id finds its row.
TEST_F(StationList, FollowsEverythingThatHappens)
{
    std::mt19937 random(11);
    for (int step = 0; step < 3000; ++step) {
        const Channel channel = kChannels[random() % 3];
        const std::string call = "N" + std::to_string(random() % 60);
        const auto what = random() % 40;
        if (what == 0) {
            ClearChannelReports(program.main, channel);
        } else if (what == 1) {
            rows.SortBy(static_cast<C>(random() % kStationColumns), random() % 2 == 0);
        } else if (what == 2) {
            program.prompts.answers = {Answer::Yes};
            program.Select("FL");
            mnuUnloadFolder_Click(program.main);
        } else if (what < 6) {
            RemoveStation(program.main, channel, call, kPositions);
        } else if (what == 6) {
            ShowListedStation(program.main, channel, call); // Deleted meanwhile, perhaps.
        } else {
            if (channel == Channel::FL && !program.Node("FL"))
                AddChannelTree(program.Tree(), channel);
            program.Position(channel, call, 40, static_cast<double>(random() % 90), "Car", std::to_string(random()));
        }
        if (random() % 3 == 0)
            rows.Update();
    }
    UpdateAll();
    rows.SortBy(C::Comment, true);
    std::size_t total = 0;
    for (const ChannelState& state : program.main.channels)
        total += state.Stations.Count();
    ASSERT_EQ(rows.Count(), total);
    const auto comments = Column(C::Comment);
    EXPECT_TRUE(std::is_sorted(comments.begin(), comments.end()));
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        const StationRows::Id id = rows.At(row);
        EXPECT_EQ(rows.RowOf(id), row);
        EXPECT_EQ(rows.Text(id, C::Comment), program.RecordText(rows.ChannelOf(id), rows.Call(id), Field::Comment));
    }
}

} // namespace
} // namespace ruvenmark
