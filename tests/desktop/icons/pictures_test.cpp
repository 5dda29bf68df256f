#include "desktop/icons/icon_set.h"
#include "desktop/icons/pixels.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

constexpr const char* kTreeKeys =
    "Triangle WindDir Balloon Bicycle Clock Eye House Status Grid Sail Snowmobile Park Phone Plane Rain Pressure "
    "Speed Volumn Gain Info Water Default Temperature Arrow Parallel Course Letterw Position Report Circle "
    "Shuttle Church Digi HFGateway Yagi Hotel Car Jogger Jeep Wheeler18 Person Motorcycle Van NTS Ship TCP "
    "Weather Antenna NWS Path Truck Closed Open Unknown Question Bus Station Received Sender State Num0 Num1 Num2 "
    "Num3 Num4 Num5 Num6 Num7 Num8 Fire GasStation Lightning PostOffice Radiation RoadClosed Explosion PhoneBooth "
    "Snow Detour CrashSite Hurricane Earthquake Races Restroom Tornado FirstAid CoastGuard Up RV";

TEST(TreeIcons, EveryKeyHasAPictureOfItsOwn)
{
    const IconSet icons;
    std::map<QByteArray, std::string> seen;
    const auto keys = QByteArray(kTreeKeys).split(' ');
    for (const QByteArray& name : keys) {
        const std::string key = name.toStdString();
        const QImage image = Drawn(icons.Tree(key), 32);
        EXPECT_GT(Coverage(image), 0.08) << key;
        const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        const auto [other, isNew] = seen.emplace(bytes, key);
        EXPECT_TRUE(isNew) << key << " looks like " << other->second;
    }
    EXPECT_EQ(icons.TreeKeys().size(), static_cast<std::size_t>(keys.size())) << "a picture that no key asks for";
    EXPECT_EQ(Drawn(icons.Tree("../map/1"), 32), Drawn(icons.Tree("Default"), 32));
}

TEST(ActionIcons, TakeTheColoursOfThePaletteTheyAreAskedFor)
{
    const IconSet icons;
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, QColor(0xfc, 0xfd, 0xfe));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x70, 0x71, 0x72));
    for (const QString& name : icons.ActionNames()) {
        const QIcon icon = icons.Action(name, palette);
        EXPECT_GT(Coverage(Drawn(icon, 24)), 0.05) << name.toStdString();
        ForEachOpaque(Drawn(icon, 96), 255,
                      [](const QColor& colour) { ASSERT_EQ(colour.rgb(), qRgb(0xfc, 0xfd, 0xfe)); });
    }
    ForEachOpaque(Drawn(icons.Action("save", palette), 96, QIcon::Disabled), 255,
                  [](const QColor& colour) { ASSERT_EQ(colour.rgb(), qRgb(0x70, 0x71, 0x72)); });
    EXPECT_TRUE(icons.Action("no-such-action", palette).isNull());
    EXPECT_GT(Coverage(Drawn(icons.Program(), 48)), 0.3);
}

// Every number that a symbol word, the operator's own marker or the GPS marker leads to.
constexpr std::array kNumbers{1,   14,  25,  58,  64,  66,  67,  68,  69,  70,  73,  77,  79,  80,  81,
                              82,  85,  86,  87,  89,  91,  92,  93,  96,  98,  99,  100, 102, 103, 104,
                              111, 114, 119, 142, 148, 152, 158, 168, 169, 180, 181, 184, 189, 195, 196,
                              199, 200, 206, 208, 209, 210, 211, 212, 213, 214, 215, 241, 250};

TEST(MapAtlas, HoldsEveryPictureApartFromTheOthers)
{
    IconSet icons;
    const MapAtlas& atlas = icons.Atlas(18, 2);
    EXPECT_EQ(atlas.Source(82).size(), QSize(36, 36));
    EXPECT_EQ(icons.MapNumbers(), std::vector<int>(kNumbers.begin(), kNumbers.end()));
    EXPECT_EQ(atlas.Source(-1), atlas.Source(1));
    std::vector<QRect> taken;
    std::map<QByteArray, int> seen;
    for (const int number : kNumbers) {
        const QRect source = atlas.Source(number);
        EXPECT_TRUE(atlas.Sheet().rect().contains(source)) << number;
        for (const QRect& other : taken)
            EXPECT_FALSE(other.adjusted(-1, -1, 1, 1).intersects(source)) << number;
        taken.push_back(source);
        const QImage image = atlas.Sheet().copy(source).toImage();
        EXPECT_GT(Coverage(image), 0.55) << number << ": a badge must cover what lies under it";
        const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        EXPECT_TRUE(seen.emplace(bytes, number).second) << number << " looks like " << seen[bytes];
    }
}

TEST(MapAtlas, FragmentsPutTheMiddleOfThePictureOnThePoint)
{
    IconSet icons;
    const MapAtlas& atlas = icons.Atlas(18, 2);
    QImage canvas(100, 80, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(2);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    const auto fragment = atlas.Fragment(82, QPointF(25, 20));
    painter.drawPixmapFragments(&fragment, 1, atlas.Sheet());
    painter.end();
    EXPECT_EQ(canvas.copy(50 - 18, 40 - 18, 36, 36).pixel(18, 3),
              atlas.Sheet().copy(atlas.Source(82)).toImage().pixel(18, 3));
    EXPECT_EQ(canvas.pixelColor(50 - 20, 40).alpha(), 0);
    EXPECT_EQ(canvas.pixelColor(50 + 20, 40).alpha(), 0);
    EXPECT_EQ(canvas.pixelColor(50, 40).alpha(), 255);
}

} // namespace
} // namespace ruvenmark
