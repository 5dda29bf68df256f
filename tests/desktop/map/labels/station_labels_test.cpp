#include "desktop/map/scene/scale_bar.h"
#include "desktop/map/widget/map_fixture.h"
#include "desktop/map/widget/zoom_buttons.h"

#include <algorithm>
#include <map>

namespace ruvenmark {
namespace {

using StationLabelsTest = MapFixture;

TEST_F(StationLabelsTest, NothingOverprints)
{
    for (int i = 0; i < 2000; ++i)
        AddPin({i * 137 % 800 + 0.3 * (i % 7), i * 71 % 600 + 0.7 * (i % 3)}, "K" + std::to_string(i) + "XYZ-15");
    Painted();
    std::vector<QRectF> rects;
    for (const auto& badge : widget.Scene().Labels().Badges())
        rects.push_back(badge.rect);
    for (const auto& name : widget.Scene().Labels().Names()) {
        rects.push_back(name.rect);
        for (const MarkerItem& item : widget.Scene().Markers().Items())
            ASSERT_FALSE(name.rect.contains(item.at)) << "a name lies on a marker";
    }
    ASSERT_GT(rects.size(), 100U);
    for (std::size_t i = 0; i < rects.size(); ++i)
        for (std::size_t j = i + 1; j < rects.size(); ++j)
            ASSERT_FALSE(rects[i].intersects(rects[j])) << i << " and " << j;
}

TEST_F(StationLabelsTest, NoNameLiesUnderButtonsScaleBarAndCredits)
{
    const QRect buttons = widget.findChild<ZoomButtons*>()->geometry();
    const QRect scaleBar = ScaleBarRect(TheMap().View()).toRect(), credits(700, 588, 100, 12);
    AddPin(QPointF(buttons.left() - 30, buttons.center().y()), "K1ABC");
    AddPin(scaleBar.topLeft() + QPointF(20, 4), "K2ABC");
    AddPin(credits.topLeft() + QPointF(5, 2), "K3ABC");
    Painted();
    const auto& names = widget.Scene().Labels().Names();
    EXPECT_EQ(names.size(), 3U) << "each has a free side";
    for (const auto& name : names)
        for (const QRect& taken : {buttons, scaleBar, credits})
            EXPECT_FALSE(name.rect.intersects(taken)) << name.slot;
}

TEST_F(StationLabelsTest, TheNewestNameWinsAndHiddenNamesAreNotWritten)
{
    const std::vector<Pushpin> crowd{AddPin({300, 300}, "OLDOLDOLD-15"), AddPin({306, 300}, "MIDMIDMID-15"),
                                     AddPin({312, 300}, "NEWNEWNEW-15"), AddPin({330, 300}, "UNNAMED", {}, false)};
    Painted();
    const auto& names = widget.Scene().Labels().Names();
    const auto isWritten = [&](const Pushpin& pin) {
        return std::any_of(names.begin(), names.end(), [&](const auto& name) { return name.slot == pin.Ref().slot; });
    };
    EXPECT_TRUE(isWritten(crowd[2]));
    EXPECT_FALSE(isWritten(crowd[3]));
    EXPECT_GE(names.size(), 2U) << "the others find a place on another side";
}

TEST_F(StationLabelsTest, NamesKeepTheirPlacesWhileTheMapIsMoved)
{
    for (int i = 0; i < 300; ++i)
        AddPin(QPointF(i * 137 % 800, i * 71 % 600), "K" + std::to_string(i) + "XYZ");
    const auto places = [&] {
        Painted();
        std::map<std::uint32_t, QPointF> found;
        for (const auto& name : widget.Scene().Labels().Names())
            if (QRectF(100, 100, 600, 400).contains(name.rect))
                found[name.slot] = name.rect.center();
        return found;
    };
    const auto before = places();
    widget.Mover().PanBy({17, -9});
    const auto after = places();
    ASSERT_GT(before.size(), 10U);
    for (const auto& [slot, at] : before) {
        const QPointF expected = at - QPointF(17, -9);
        if (!QRectF(160, 120, 480, 360).contains(expected))
            continue;
        ASSERT_TRUE(after.contains(slot)) << slot;
        EXPECT_LT(QLineF(after.at(slot), expected).length(), 0.5);
    }
}

TEST_F(StationLabelsTest, BadgeCountsWhatIsHidden)
{
    for (int i = 0; i < 12; ++i)
        AddPin({300, 300}, "K" + std::to_string(i));
    AddPin({500, 300}, "W1AW");
    Painted();
    ASSERT_EQ(widget.Scene().Labels().Badges().size(), 1U);
    EXPECT_LT(QLineF(widget.Scene().Labels().Badges()[0].rect.center(), {300, 300}).length(), 20);
    widget.Mover().ZoomAbout({300, 300}, 1);
    Painted();
    EXPECT_EQ(widget.Scene().Labels().Badges().size(), 1U) << "one spot stays one spot at any zoom";

    for (const auto& [count, text] :
         {std::pair{2, "2"}, {999, "999"}, {1000, "1k"}, {1299, "1.2k"}, {34999, "34k"}, {2000000, "2M"}})
        EXPECT_EQ(StationLabels::CountText(static_cast<std::uint32_t>(count)), text);
}

TEST_F(StationLabelsTest, TheMapsFontSizesTheNames)
{
    AddPin({300, 300}, "K1ABC");
    double height = 1000;
    for (const int font : {0, 1, 2, 3, 4}) {
        TheMap().SetMapFont(font);
        Painted();
        ASSERT_EQ(widget.Scene().Labels().Names().size(), 1U);
        EXPECT_LT(widget.Scene().Labels().Names()[0].rect.height(), height);
        height = widget.Scene().Labels().Names()[0].rect.height();
    }
}

} // namespace
} // namespace ruvenmark
