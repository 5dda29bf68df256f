#include "platform/failure.h"
#include "support/program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;

std::vector<std::string> Calls(const ChannelState& state)
{
    std::vector<std::string> calls;
    for (const auto& [key, call] : state.Tracked) {
        EXPECT_EQ(key, call);
        calls.push_back(key);
    }
    return calls;
}

TEST(TrackLists, TakeCallsTrimmedInUpperCaseOnceEach)
{
    Program p;
    ChannelState& state = p.main.Of(Channel::RF);
    SetTrackList(state, "  n1call N0CALL-9   n1CALL  z9 ");
    EXPECT_THAT(Calls(state), ElementsAre("N1CALL", "N0CALL-9", "Z9")); // The doubled one does not end the list.
    EXPECT_EQ(TrackListText(state), "N1CALL N0CALL-9 Z9");
    EXPECT_TRUE(IsTracked(state, " n0call-9 "));
    EXPECT_FALSE(IsTracked(state, "N0CALL"));
    EXPECT_FALSE(IsTracked(p.main.Of(Channel::TCP), "Z9"));
    SetTrackList(state, " ");
    EXPECT_TRUE(state.Tracked.IsEmpty());
    EXPECT_EQ(TrackListText(state), "");
}

TEST(TrackLists, ComeBackFromTheStoreAsTheyWent)
{
    Program p(false);
    p.store.Set("TrackedRFStations", "n0call  B A");
    p.store.Set("TrackedFLStations", "X");
    p.store.Set("ShowTrackLine", "0");
    StartMainWindow(p.main);
    EXPECT_THAT(Calls(p.main.Of(Channel::RF)), ElementsAre("N0CALL", "B", "A"));
    EXPECT_FALSE(p.main.tracking.bShowTrackLine);
    SetTrackList(p.main.Of(Channel::TCP), "c d");
    ASSERT_TRUE(StopMainWindow(p.main));
    EXPECT_EQ(p.store.Get("TrackedRFStations", ""), "N0CALL B A");
    EXPECT_EQ(p.store.Get("TrackedTCPStations", ""), "C D");
    EXPECT_EQ(p.store.Get("TrackedFLStations", ""), "X");
    EXPECT_EQ(p.store.Get("ShowTrackLine", ""), "False");
    EXPECT_TRUE(p.main.Of(Channel::RF).Tracked.IsEmpty());
}

TEST(TrackLists, TravelDistanceIsInMiles)
{
    Program p;
    EXPECT_NEAR(TravelDistance(p.main, 0, 0, 0, 1), 69.1, 0.1);
    EXPECT_EQ(TravelDistance(p.main, 48, 11, 48, 11), 0);
    EXPECT_THROW(TravelDistance(p.main, 91, 0, 0, 0), Failure);
}

} // namespace
} // namespace ruvenmark
