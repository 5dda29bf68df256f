#include "desktop/map/base_map/world_map.h"
#include "desktop/map/labels/label_grid.h"
#include "desktop/map/labels/place_labels.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ruvenmark {
namespace {

class PlaceLabelsTest : public testing::Test {
protected:
    using Name = PlaceLabels::Name;
    const std::vector<Name>& Place(GeoPoint centre, double zoom, std::int32_t mapFont, const QRectF& taken = {})
    {
        LabelGrid grid;
        grid.Reset(1000, 700);
        if (!taken.isEmpty())
            grid.Block(taken);
        labels.Place(FrameAt(centre, zoom, 1000, 700), grid, {MapStyle::Road, false, mapFont, 1, true});
        return labels.Names();
    }
    static bool Has(const std::vector<Name>& names, const QString& text)
    {
        return std::any_of(names.begin(), names.end(), [&](const Name& name) { return name.text == text; });
    }

    BaseMap map = BaseMap::Open(kWorldMapPath);
    PlaceLabels labels{map};
};

TEST_F(PlaceLabelsTest, NamesNeverOverlapNorLeaveTheView)
{
    const QRectF taken(300, 200, 400, 60);
    for (const GeoPoint centre : {GeoPoint{48, 9}, GeoPoint{40.75, -73.95}, GeoPoint{0, 179}}) {
        for (const double zoom : {1.0, 2.6, 4.5, 7.1, 9.0, 12.0}) {
            std::vector<QRectF> placed{taken};
            for (const Name& name : Place(centre, zoom, static_cast<std::int32_t>(zoom) % 5, taken)) {
                const QRectF letters = name.rect.adjusted(3, 3, -3, -3); // Without the room for the halo.
                EXPECT_TRUE(QRectF(0, 0, 1000, 700).contains(letters)) << name.text.toStdString();
                for (const QRectF& other : placed)
                    EXPECT_FALSE(letters.intersects(other)) << name.text.toStdString();
                placed.push_back(letters);
            }
        }
    }
}

TEST_F(PlaceLabelsTest, WeightyNamesComeFirst)
{
    const auto& world = Place({20, 0}, 2, 2);
    EXPECT_TRUE(Has(world, "UNITED STATES") && Has(world, "BRAZIL") && Has(world, "AUSTRALIA"));
    const auto& britain = Place({53.5, -2.5}, 6.5, 2);
    EXPECT_TRUE(Has(britain, "London") && Has(britain, "Dublin") && Has(britain, "Douglas"));
    const auto& states = Place({39, -98}, 5, 2);
    EXPECT_TRUE(Has(states, "KANSAS") && Has(states, "COLORADO"));
    EXPECT_FALSE(Has(states, "Wichita Falls"));
    EXPECT_TRUE(Has(Place({40.7, -73.95}, 12, 2), "Brooklyn"));
}

} // namespace
} // namespace ruvenmark
