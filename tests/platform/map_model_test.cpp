#include "platform/failure.h"
#include "platform/geometry.h"
#include "platform/map_control.h"
#include "support/doubles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <tuple>

namespace ruvenmark {
namespace {

class MapModel : public testing::Test {
protected:
    MapModel() : control(files), here(NewMap().GetLocation(48, 11)) {}
    Map& TheMap() { return control.RequireMap(); }
    Pushpin Add(const char* name) { return TheMap().AddPushpin(here, name); }

    MemoryFiles files;
    MapControl control;
    Location here;

private:
    Map& NewMap()
    {
        control.NewMap(kRegionNorthAmerica);
        return control.RequireMap();
    }
};

TEST_F(MapModel, NamesFollowRandomEditsAsTheNaiveModelHasThem)
{
    std::mt19937 random(3);
    std::vector<std::pair<Pushpin, std::string>> naive; // Oldest first.
    std::vector<SlotRef> hints{SlotRef()};
    const auto name = [&] { return std::string(1 + random() % 2 * 30, static_cast<char>('a' + random() % 3)); };
    for (int i = 0; i < 20000; ++i) {
        const auto what = random() % (naive.size() > 40 ? 5 : 4);
        const auto at = naive.empty() ? 0 : random() % naive.size();
        if (what < 2 || naive.empty()) {
            const std::string added = name();
            naive.emplace_back(Add(added.c_str()), added);
        } else if (what == 2) {
            naive[at].second = name();
            naive[at].first.SetName(naive[at].second);
        } else {
            naive[at].first.Delete();
            naive.erase(naive.begin() + static_cast<std::ptrdiff_t>(at));
        }
        const std::string sought = name();
        const auto oldest =
            std::find_if(naive.begin(), naive.end(), [&](const auto& pin) { return pin.second == sought; });
        // A hint that is right, that is a younger pin of the name, that bears another name or is gone: no difference.
        hints.push_back(naive.empty() ? SlotRef() : naive[random() % naive.size()].first.Ref());
        const auto found = TheMap().FindPushpin(sought, hints[random() % hints.size()]);
        ASSERT_EQ(found.has_value(), oldest != naive.end());
        if (found) {
            ASSERT_EQ(*found, oldest->first);
        }
    }
    const auto records = TheMap().AllRecords();
    ASSERT_EQ(records.size(), naive.size());
    for (std::size_t i = 0; i < naive.size(); ++i) {
        EXPECT_EQ(records[i], naive[i].first);
        EXPECT_EQ(records[i].Name(), naive[i].second);
    }
}

TEST_F(MapModel, HandlesOfWhatIsGoneRaise)
{
    Pushpin pin = Add("A");
    Shape line = TheMap().AddLine(here, here);
    pin.Delete();
    line.Delete();
    const Pushpin inTheSameSlot = Add("B");
    EXPECT_EQ(inTheSameSlot.Ref().slot, pin.Ref().slot);
    EXPECT_THROW(pin.SetNote(""), Failure);
    EXPECT_THROW(pin.Delete(), Failure);
    EXPECT_THROW(line.SetVisible(false), Failure);
    EXPECT_THROW(TheMap().PinAt(99), Failure);
    EXPECT_EQ(inTheSameSlot.Name(), "B");
}

TEST_F(MapModel, AReplacedMapLeavesNothingUsable)
{
    const Pushpin pin = Add("A");
    Shape circle = TheMap().AddShape(kShapeRadiusCircle, here, 5, 5);
    TheMap().SetSize(320, 200);
    control.SetToolbarVisible(3, true);

    control.NewMap(kRegionEurope);
    EXPECT_EQ(TheMap().Width(), 320);
    EXPECT_TRUE(control.ToolbarVisible(3));
    EXPECT_EQ(TheMap().DataSetCount(), 0);
    EXPECT_TRUE(TheMap().Saved());
    EXPECT_FALSE(TheMap().FindPushpin("A"));
    EXPECT_THROW(circle.SetWeight(1), Failure);
    EXPECT_THROW(here.GoTo(), Failure);
    EXPECT_THROW(TheMap().AddPushpin(here, "B"), Failure);
    EXPECT_FALSE(pin == TheMap().AddPushpin(TheMap().GetLocation(0, 0), "A"));
    EXPECT_THROW(pin.Location(), Failure);
}

TEST_F(MapModel, OnlyPlacesOnTheEarthAreLocations)
{
    EXPECT_NO_THROW(TheMap().GetLocation(-90, 180));
    for (const auto& [lat, lon] : {std::pair(90.0001, 0.0), {0.0, -180.0001}, {std::nan(""), 0.0}, {0.0, HUGE_VAL}})
        EXPECT_THROW(TheMap().GetLocation(lat, lon), Failure);
    EXPECT_THROW(TheMap().AddShape(1, here, 5, 5), Failure);
    EXPECT_THROW(TheMap().AddShape(kShapeRadiusCircle, here, std::nan(""), 5), Failure);
    EXPECT_THROW(TheMap().SetMapStyle(5), Failure);
    EXPECT_THROW(TheMap().SetMapFont(-1), Failure);
}

TEST_F(MapModel, TheViewStaysOnTheWorld)
{
    for (const double lon : {180.0, 190.0, -541.0, 1e300}) {
        TheMap().SetView({95, lon}, 99);
        EXPECT_LE(std::abs(TheMap().View().centre.lon), 180);
    }
    EXPECT_LE(TheMap().View().centre.lat, 85.1);
    EXPECT_EQ(TheMap().View().zoom, 19);
    const MapView before = TheMap().View();
    TheMap().SetView({std::nan(""), 0}, 3);
    EXPECT_EQ(TheMap().View().centre, before.centre);
}

TEST_F(MapModel, PaintersSeeEveryChange)
{
    int changes = 0;
    const auto observing = TheMap().Changed.Observe([&] { ++changes; });
    Pushpin pin = Add("A");
    TheMap().SetSaved(true);
    pin.SetSymbol(200);
    pin.SetBalloonState(1);
    pin.SetLocation(TheMap().GetLocation(0, 180));
    const PinPoint point = TheMap().PinPoints().at(pin.Ref().slot);
    EXPECT_TRUE(point.bLive && point.bBalloon);
    EXPECT_EQ(point.symbol, 200);
    EXPECT_EQ(point.y, 1U << 31U);
    EXPECT_GT(point.x, 0xFFFFFF00U); // The right edge, not around it.
    EXPECT_FALSE(TheMap().Saved());
    EXPECT_EQ(changes, 4);

    Pushpin other = Add("B");
    const auto slot = pin.Ref().slot;
    pin.Delete();
    EXPECT_FALSE(TheMap().PinPoints().at(slot).bLive);
    other.Delete();
    EXPECT_TRUE(TheMap().PinPoints().empty());
    EXPECT_THROW(other.SetSymbol(1), Failure);
    EXPECT_EQ(TheMap().DataSetCount(), 1); // Something was added once.
    EXPECT_EQ(TheMap().RecordCount(), 0);
}

TEST_F(MapModel, ANewMapShowsItsRegion)
{
    TheMap().SetView({-40, 170}, 12);
    TheMap().SetSize(1000, 700);
    control.NewMap(kRegionEurope);
    const MapView& view = TheMap().View();
    for (const GeoPoint corner : {GeoPoint{60, -8}, GeoPoint{36, 30}}) { // Lerwick to Antalya.
        const PixelPoint at = ToPixel(view, corner);
        EXPECT_TRUE(at.x > 0 && at.x < 1000 && at.y > 0 && at.y < 700) << corner.lat;
    }
    EXPECT_GT(view.zoom, 3.5);
}

constexpr GeoPoint kLondon{51.5074, -0.1278}, kNewYork{40.7128, -74.0060};

TEST(Geometry, DistancesAreThoseOfKnownPlacesInBothDirections)
{
    const std::tuple<GeoPoint, GeoPoint, double> kMiles[] = {
        {kLondon, kNewYork, 3461.2},
        {{35.6762, 139.6503}, {37.7749, -122.4194}, 5141.6}, // Across the 180th meridian.
        {{90, 0}, {-90, 0}, 12436.8},
        {{48, 11}, {48.0003, 11.0003}, 0.02494},
        {{10, 180}, {10, -180}, 0}};
    for (const auto& [from, to, miles] : kMiles) {
        EXPECT_NEAR(GreatCircleMiles(from, to), miles, miles / 1000 + 1e-9);
        EXPECT_NEAR(GreatCircleMiles(to, from), miles, miles / 1000 + 1e-9);
    }
}

TEST(Geometry, BearingsAreClockwiseFromNorth)
{
    EXPECT_NEAR(InitialBearing({0, 0}, {1, 0}), 0, 1e-9);
    EXPECT_NEAR(InitialBearing({0, 179.5}, {0, -179.5}), 90, 1e-9);
    EXPECT_NEAR(InitialBearing(kLondon, kNewYork), 288.3, 0.1);
    EXPECT_LT(InitialBearing({0, 0}, {1, -1e-18}), 360); // A hair west of north.
}

} // namespace
} // namespace ruvenmark
