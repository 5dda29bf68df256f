#include "desktop/icons/icon_set.h"
#include "desktop/icons/pixels.h"

#include <gtest/gtest.h>

#include <array>

namespace ruvenmark {
namespace {

// Every number that a symbol word, the operator's own marker or the GPS marker leads to.
constexpr std::array kNumbers{1,   14,  25,  58,  64,  66,  67,  68,  69,  70,  73,  77,  79,  80,  81,
                              82,  85,  86,  87,  89,  91,  92,  93,  96,  98,  99,  100, 102, 103, 104,
                              111, 114, 119, 142, 148, 152, 158, 168, 169, 180, 181, 184, 189, 195, 196,
                              199, 200, 206, 208, 209, 210, 211, 212, 213, 214, 215, 241, 250};

TEST(MapPictures, EveryNumberHasAPictureOfItsOwn)
{
    IconSet icons;
    std::map<QByteArray, int> seen;
    for (const int number : kNumbers) {
        const QImage image = icons.MapPicture(number, 18, 1).toImage();
        EXPECT_GT(Coverage(image), 0.55) << number << ": a badge must cover what lies under it";
        const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        const auto [other, isNew] = seen.emplace(bytes, number);
        EXPECT_TRUE(isNew) << number << " looks like " << other->second;
    }
    EXPECT_EQ(icons.MapNumbers(), std::vector<int>(kNumbers.begin(), kNumbers.end()));
}

TEST(MapPictures, ANumberWithoutAPictureLooksLikeTheDefault)
{
    IconSet icons;
    const QImage standIn = icons.MapPicture(1, 18, 1).toImage();
    for (const int number : {0, 2, -1, 207, 251, 32767, -32768})
        EXPECT_EQ(icons.MapPicture(number, 18, 1).toImage(), standIn) << number;
}

TEST(MapPictures, AreDrawnForTheDevice)
{
    IconSet icons;
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        const QPixmap picture = icons.MapPicture(82, 18, ratio);
        EXPECT_EQ(picture.width(), qRound(18 * ratio));
        EXPECT_EQ(picture.devicePixelRatio(), ratio);
    }
}

TEST(MapAtlas, HoldsEveryPictureApartFromTheOthers)
{
    IconSet icons;
    const MapAtlas& atlas = icons.Atlas(18, 2);
    EXPECT_EQ(atlas.Cell(), 36);
    std::vector<QRect> taken;
    for (const int number : kNumbers) {
        const QRect source = atlas.Source(number);
        EXPECT_TRUE(atlas.Sheet().rect().contains(source)) << number;
        for (const QRect& other : taken)
            EXPECT_FALSE(other.adjusted(-1, -1, 1, 1).intersects(source)) << number;
        taken.push_back(source);
        QPixmap alone = icons.MapPicture(number, 18, 2);
        alone.setDevicePixelRatio(1);
        EXPECT_EQ(atlas.Sheet().copy(source).toImage(), alone.toImage()) << number;
    }
}

TEST(MapAtlas, GivesTheDefaultForAnyOtherNumber)
{
    IconSet icons;
    const MapAtlas& atlas = icons.Atlas(18, 1);
    for (const int number : {0, 2, -1, 251, 1000000})
        EXPECT_EQ(atlas.Source(number), atlas.Source(1)) << number;
}

TEST(MapAtlas, IsMadeOnceForASizeAndARatio)
{
    IconSet icons;
    const MapAtlas& first = icons.Atlas(18, 1);
    EXPECT_NE(&icons.Atlas(20, 1), &first);
    EXPECT_NE(&icons.Atlas(18, 2), &first);
    EXPECT_EQ(&icons.Atlas(18, 1), &first);
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
