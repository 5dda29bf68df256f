#include "desktop/map/label_grid.h"
#include "desktop/map/place_labels.h"
#include "world_map.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace ruvenmark {
namespace {

TEST(LabelGridTest, NothingOverlapsAndNothingLeavesTheWindow)
{
    LabelGrid grid(301, 203);
    std::mt19937 random(3);
    std::vector<QRectF> taken;
    for (int i = 0; i < 5000; ++i) {
        const auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
        const QRectF rect(pick(400) - 49.7, pick(300) - 50, 1 + pick(90), 1 + pick(30));
        if (!grid.TryPlace(rect))
            continue;
        EXPECT_TRUE(QRectF(0, 0, 301, 203).contains(rect));
        for (const QRectF& other : taken)
            EXPECT_FALSE(rect.intersects(other));
        taken.push_back(rect);
    }
    EXPECT_GT(taken.size(), 20U);
    grid.Reset(301, 203);
    EXPECT_TRUE(grid.TryPlace({10, 10, 250, 30})); // Over several words of a row.
    EXPECT_FALSE(grid.IsFree({200, 30, 4, 4}));
}

TEST(LabelGridTest, TakesAnyNumber)
{
    LabelGrid grid(100, 100);
    const double huge = std::numeric_limits<double>::max();
    EXPECT_FALSE(grid.TryPlace({-huge, -huge, huge, huge}));
    EXPECT_FALSE(grid.TryPlace({huge, 5, 10, 10}));
    grid.Block({-1e9, 40, 2e9, 10});
    EXPECT_FALSE(grid.IsFree({50, 45, 2, 2}));
    EXPECT_TRUE(grid.IsFree({50, 60, 2, 2}));
    LabelGrid empty;
    EXPECT_FALSE(empty.TryPlace({0, 0, 1, 1}));
    empty.Block({0, 0, 10, 10});
}

class PlaceLabelsTest : public testing::Test {
protected:
    std::vector<PlaceLabels::Placed> Place(GeoPoint centre, double zoom, std::int32_t mapFont, const QRectF& taken = {})
    {
        QImage image(1000, 700, QImage::Format_RGB32);
        QPainter painter(&image);
        LabelGrid grid(1000, 700);
        if (!taken.isEmpty())
            grid.Block(taken);
        labels.Paint(painter, FrameAt(centre, zoom, 1000, 700), grid, {MapStyle::Road, false, mapFont, 1, false});
        return labels.LastPlaced();
    }
    bool Has(const std::vector<PlaceLabels::Placed>& placed, const QString& text)
    {
        return std::any_of(placed.begin(), placed.end(), [&](const auto& label) { return label.text == text; });
    }

    BaseMap map = BaseMap::Open(WorldMapPath());
    PlaceLabels labels{map};
};

TEST_F(PlaceLabelsTest, NamesNeverOverlapNorLeaveTheView)
{
    const QRectF taken(300, 200, 400, 60);
    for (const GeoPoint centre : {GeoPoint{48, 9}, GeoPoint{40.75, -73.95}, GeoPoint{0, 179}}) {
        for (const double zoom : {1.0, 2.6, 4.5, 7.1, 9.0, 12.0}) {
            const auto placed = Place(centre, zoom, static_cast<std::int32_t>(zoom) % 5, taken);
            for (std::size_t i = 0; i < placed.size(); ++i) {
                EXPECT_TRUE(QRectF(0, 0, 1000, 700).contains(placed[i].rect)) << placed[i].text.toStdString();
                EXPECT_FALSE(placed[i].rect.intersects(taken)) << placed[i].text.toStdString();
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_FALSE(placed[i].rect.intersects(placed[j].rect))
                        << placed[i].text.toStdString() << " / " << placed[j].text.toStdString();
            }
        }
    }
}

TEST_F(PlaceLabelsTest, WeightyNamesComeFirst)
{
    const auto world = Place({20, 0}, 2, 2);
    EXPECT_TRUE(Has(world, "UNITED STATES") && Has(world, "BRAZIL") && Has(world, "AUSTRALIA"));
    const auto britain = Place({53.5, -2.5}, 6.5, 2);
    EXPECT_TRUE(Has(britain, "London") && Has(britain, "Dublin") && Has(britain, "Douglas"));
    const auto states = Place({39, -98}, 5, 2);
    EXPECT_TRUE(Has(states, "KANSAS") && Has(states, "COLORADO"));
    EXPECT_FALSE(Has(states, "Wichita Falls"));
    EXPECT_TRUE(Has(Place({40.7, -73.95}, 12, 2), "Brooklyn"));
}

TEST_F(PlaceLabelsTest, SmallerLettersLeaveRoomForMoreNames)
{
    EXPECT_GT(Place({48, 9}, 6, 4).size(), Place({48, 9}, 6, 0).size());
}

} // namespace
} // namespace ruvenmark
