#include "desktop/map/base_map.h"
#include "desktop/map/place_index.h"
#include "world_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace ruvenmark {
namespace {

class PlaceIndexTest : public testing::Test {
protected:
    QString First(QStringView text)
    {
        const auto found = FindPlaces(map, text, 1);
        return found.empty() ? QString() : PlaceTitle(map, found.front());
    }

    BaseMap map = BaseMap::Open(WorldMapPath());
};

TEST_F(PlaceIndexTest, FindsTheLargestFirst)
{
    EXPECT_EQ(First(u"new yor"), "New York City, New York, United States");
    EXPECT_TRUE(First(u"Paris").endsWith("France"));
    EXPECT_TRUE(First(u" london ").endsWith("United Kingdom"));
    const auto found = FindPlaces(map, u"spring", 50);
    EXPECT_EQ(found.size(), 50U);
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
    for (const std::size_t place : found)
        EXPECT_EQ(FoldForSearch(QString::fromUtf8(map.Place(place).name.data(),
                                                  static_cast<qsizetype>(map.Place(place).name.size())))
                      .substr(0, 6),
                  "spring");
}

TEST_F(PlaceIndexTest, MarksAndCaseDoNotMatter)
{
    EXPECT_TRUE(First(u"SAO PAU").startsWith(u"São Paulo"));
    EXPECT_TRUE(First(u"zurich").startsWith(u"Zürich"));
    EXPECT_EQ(First(u"ZÜRICH"), First(u"zurich"));
    EXPECT_TRUE(First(u"lodz").startsWith(u"Łódź"));
    EXPECT_TRUE(First(u"xi'an").startsWith(u"Xi’an"));
}

// The stored order and the folding here come from two programs: each name has to be found by itself.
TEST_F(PlaceIndexTest, EveryNameIsFoundByItself)
{
    for (std::size_t place = 0; place < map.PlaceCount(); place += 7) {
        const std::string_view name = map.Place(place).name;
        const auto found =
            FindPlaces(map, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), map.PlaceCount());
        ASSERT_TRUE(std::find(found.begin(), found.end(), place) != found.end()) << name;
    }
}

TEST_F(PlaceIndexTest, AnyTextIsTaken)
{
    EXPECT_TRUE(FindPlaces(map, u"", 10).empty());
    EXPECT_TRUE(FindPlaces(map, u"   ", 10).empty());
    EXPECT_TRUE(FindPlaces(map, u"zzqqxx", 10).empty());
    EXPECT_TRUE(FindPlaces(map, u"a", 0).empty());
    EXPECT_TRUE(FindPlaces(map, QString(100000, u'n'), 10).empty());
    const char16_t broken[] = {0xD800, u'a', 0};
    EXPECT_TRUE(FindPlaces(map, broken, 10).empty());
}

TEST_F(PlaceIndexTest, IsFastEnoughToTypeAlong)
{
    const auto start = std::chrono::steady_clock::now();
    for (char16_t letter = u'a'; letter <= u'z'; ++letter)
        EXPECT_FALSE(FindPlaces(map, QString(QChar(letter)), 20).empty());
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    EXPECT_LT(time.count() / 26, 50); // Far below 5 ms when nothing else runs and nothing is checked.
}

} // namespace
} // namespace ruvenmark
