#include "support/test_program.h"
#include "ui/station_rows.h"
#include "ui/station_tree_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::MatchesRegex;
using C = StationColumn;

std::vector<std::string> Column(const StationRows& rows, StationColumn column)
{
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < rows.Count(); ++row)
        texts.push_back(rows.Text(rows.At(row), column));
    return texts;
}

void UpdateAll(StationRows& rows)
{
    while (rows.Update()) {
    }
}

// A report costs a mark, told once until it is taken in.
TEST(StationRows, ListsWhatIsKnownOfAStation)
{
    TestProgram program;
    SetSetting(program.main.Settings, Setting::Lat, "40");
    SetSetting(program.main.Settings, Setting::Lon, "-90");
    StationRows rows(program.main);
    UpdateAll(rows);
    int told = 0;
    const auto subscription = rows.Due.Observe([&] { ++told; });
    for (int i = 0; i < 10; ++i)
        program.Hear(Channel::TCP, "N0CALL-9>APRS,WIDE1-1*,qAR,N1GATE:!4100.00N/09000.00W>090/036on the road");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(rows.Count(), 0U);
    UpdateAll(rows);
    ASSERT_EQ(rows.Count(), 1U);
    std::vector<std::string> texts;
    for (std::size_t column = 0; column < kStationColumns; ++column)
        texts.push_back(rows.Text(rows.At(0), static_cast<StationColumn>(column)));
    EXPECT_THAT(texts, ElementsAre("N0CALL-9", "Car", "TCP", "2026-11-22 20:15:03", "69.1 mi", "0°", "90°", "41 mph",
                                   "WIDE1-1*,qAR,N1GATE", "on the road"));
}

// What is not known would else stand before everything near, or jump with each turn of the order.
TEST(StationRows, SortsByNumbersAndTextsWithTheUnknownAtTheEnd)
{
    TestProgram program;
    SetSetting(program.main.Settings, Setting::Lat, "0");
    SetSetting(program.main.Settings, Setting::Lon, "0");
    for (const auto& [call, lat] : {std::pair("FAR", 20), {"near", 2}, {"NEAR-1", 9}})
        program.Position(Channel::RF, call, lat, 0);
    program.Sink(Channel::RF).ReportStatus({"NOWHERE", "APRS", "", kNoPosition, kNoPosition, "here"});
    StationRows rows(program.main);
    UpdateAll(rows);
    EXPECT_THAT(Column(rows, C::Call), ElementsAre("FAR", "near", "NEAR-1", "NOWHERE"));
    rows.SortBy(C::Distance, true);
    EXPECT_THAT(Column(rows, C::Call), ElementsAre("near", "NEAR-1", "FAR", "NOWHERE"));
    rows.SortBy(C::Distance, false);
    EXPECT_THAT(Column(rows, C::Call), ElementsAre("FAR", "NEAR-1", "near", "NOWHERE"));
    rows.SortBy(C::Call, false);
    EXPECT_THAT(Column(rows, C::Call), ElementsAre("NOWHERE", "NEAR-1", "near", "FAR"));
}

// All at once the window would stand still; and a report, a filter or another click in the midst must not mix the
// orders.
TEST(StationRows, ManyAreSortedInPiecesWhileTheListStaysAsItIs)
{
    TestProgram program;
    SetSetting(program.main.Settings, Setting::Lat, "0");
    SetSetting(program.main.Settings, Setting::Lon, "0");
    constexpr int kMany = 12000;
    for (int i = 0; i < kMany; ++i)
        program.Position(Channel::RF, "N" + std::to_string(i * 7919 % kMany), 1 + i % 80, 0, "Car",
                         "of the same beginning as all others " + std::to_string(i % 100));
    StationRows rows(program.main);
    UpdateAll(rows);
    const auto calls = Column(rows, C::Call);
    ASSERT_TRUE(std::is_sorted(calls.begin(), calls.end()));
    rows.SortBy(C::Distance, false);
    rows.Update();
    rows.SortBy(C::Comment, false);
    program.Position(Channel::RF, "ZLAST", 1, 0, "Car", "zzz");
    EXPECT_TRUE(rows.Update());
    EXPECT_EQ(Column(rows, C::Call), calls);
    UpdateAll(rows);
    EXPECT_FALSE(rows.IsSorting());
    const auto comments = Column(rows, C::Comment);
    ASSERT_EQ(comments.size(), calls.size() + 1);
    EXPECT_EQ(comments.front(), "zzz");
    EXPECT_TRUE(std::is_sorted(comments.rbegin(), comments.rend()));
    EXPECT_THAT(Column(rows, C::Distance), Each(MatchesRegex("[0-9]+\\.[0-9] mi"))) << "one below the other";
}

TEST(StationRows, FiltersByCallAgeAndRoad)
{
    TestProgram program;
    program.Hear(Channel::RF, "DL1ABC>APRS,N0DIGI*:!4903.50N/07201.75W>");
    program.clock.Advance(std::chrono::minutes(30));
    program.Hear(Channel::RF, "DL2ABC-7>APRS,WIDE1-1:!4903.50N/07201.75W>");
    program.Hear(Channel::TCP, "N0CALL>APRS,TCPIP*,qAC,SERVER:!4903.50N/07201.75W>");
    program.Hear(Channel::FL, "W1AW>APRS,WIDE1-1,qAR,GATE:!4903.50N/07201.75W>");
    StationRows rows(program.main);
    UpdateAll(rows);
    const auto listed = [&](const StationListFilter& filter) {
        rows.SetFilter(filter);
        return Column(rows, C::Call);
    };
    EXPECT_THAT(listed({"2abc"}), ElementsAre("DL2ABC-7"));
    EXPECT_THAT(listed({"dl*c n?call"}), ElementsAre("DL1ABC", "N0CALL"));
    EXPECT_THAT(listed({"", 15}), ElementsAre("DL2ABC-7", "N0CALL", "W1AW"));
    EXPECT_THAT(listed({"", 0, true}), ElementsAre("DL2ABC-7"));
    rows.SetFilter({"", 15});
    program.clock.Advance(std::chrono::minutes(20)); // They go by the time alone.
    UpdateAll(rows);
    EXPECT_EQ(rows.Count(), 0U);
    EXPECT_EQ(rows.Total(), 4U);
}

// Whatever is heard, deleted, cleared and unloaded, and however it falls between the updates, the list is what the
// channels hold, in order, and every id finds its row.
TEST(StationRows, FollowsEverythingThatHappens)
{
    TestProgram program;
    StationRows rows(program.main);
    std::mt19937 random(11);
    for (int step = 0; step < 3000; ++step) {
        const Channel channel = kChannels[random() % 3];
        const std::string call = "N" + std::to_string(random() % 60);
        switch (random() % 40) {
        case 0:
            ClearChannelReports(program.main, channel);
            break;
        case 1:
            rows.SortBy(static_cast<C>(random() % kStationColumns), random() % 2 == 0);
            break;
        case 2:
            program.prompts.answers = {Answer::Yes};
            program.Select("FL");
            mnuUnloadFolder_Click(program.main);
            break;
        case 3:
        case 4:
        case 5:
            RemoveStation(program.main, channel, call, kPositions);
            break;
        case 6:
            ShowListedStation(program.main, channel, call); // Deleted meanwhile, perhaps.
            break;
        default:
            if (channel == Channel::FL && !program.Node("FL"))
                AddChannelTree(program.Tree(), channel);
            program.Position(channel, call, 40, static_cast<double>(random() % 90), "Car", std::to_string(random()));
        }
        if (random() % 3 == 0)
            rows.Update();
    }
    UpdateAll(rows);
    rows.SortBy(C::Comment, true);
    std::size_t total = 0;
    for (const ChannelState& state : program.main.channels)
        total += state.Stations.Count();
    ASSERT_EQ(rows.Count(), total);
    const auto comments = Column(rows, C::Comment);
    EXPECT_TRUE(std::is_sorted(comments.begin(), comments.end()));
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        const StationRows::Id id = rows.At(row);
        EXPECT_EQ(rows.RowOf(id), row);
        EXPECT_EQ(rows.Text(id, C::Comment), program.RecordText(rows.ChannelOf(id), rows.Call(id), Field::Comment));
    }
}

} // namespace
} // namespace ruvenmark
