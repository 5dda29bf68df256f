#include "desktop/map/base_map/other_names.h"
#include "desktop/map/base_map/place_index.h"
#include "desktop/map/base_map/world_map.h"
#include "mapfiles/base_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace ruvenmark {
namespace {

class PlaceIndexTest : public testing::Test {
protected:
    QString First(QStringView text)
    {
        const auto found = FindPlaces(map, text, 1);
        if (found.empty())
            return {};
        const PlaceRecord place = map.Place(found.front());
        std::string title(place.name);
        if (place.country)
            title.append(", ").append(map.Country(*place.country).name);
        return QString::fromStdString(title);
    }

    BaseMap map = BaseMap::Open(kWorldMapPath);
};

TEST_F(PlaceIndexTest, FindsTheLargestFirstWhateverMarksAndCase)
{
    for (const auto& [typed, title] : {std::pair{u"new yor", u"New York City, United States"},
                                       {u" london ", u"London, United Kingdom"},
                                       {u"SAO PAU", u"São Paulo, Brazil"},
                                       {u"ZÜRICH", u"Zürich, Switzerland"},
                                       {u"zurich", u"Zürich, Switzerland"},
                                       {u"lodz", u"Łódź, Poland"},
                                       {u"xi'an", u"Xi’an, China"}})
        EXPECT_EQ(First(typed), QString::fromUtf16(title));
    const auto found = FindPlaces(map, u"spring", 50);
    EXPECT_EQ(found.size(), 50U);
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
}

// The stored order and the folding here come from two programs: each name has to be found by itself.
TEST_F(PlaceIndexTest, EveryNameIsFoundByItself)
{
    for (std::size_t place = 0; place < map.PlaceCount(); place += 7) {
        const std::string_view name = map.Place(place).name;
        const auto found = FindPlaces(map, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), 1);
        ASSERT_FALSE(found.empty()) << name;
        ASSERT_LE(found.front(), place) << name << ": only a larger place may come before it";
    }
}

TEST_F(PlaceIndexTest, LaterWordsAreFoundAfterFirstOnes)
{
    const auto found = FindPlaces(map, u"Angeles", 1000);
    const auto begins = [&](std::size_t place) {
        return FoldForSearch(QString::fromStdString(std::string(map.Place(place).name))).starts_with("angeles");
    };
    const auto firstLater = std::partition_point(found.begin(), found.end(), begins);
    ASSERT_NE(firstLater, found.begin());
    ASSERT_NE(firstLater, found.end());
    EXPECT_EQ(map.Place(*firstLater).name, "Los Angeles") << "the largest";
    EXPECT_TRUE(std::none_of(firstLater, found.end(), begins));
    EXPECT_TRUE(std::is_sorted(found.begin(), firstLater) && std::is_sorted(firstLater, found.end()));
    EXPECT_TRUE(First(u"york ci").startsWith("New York City"));
    EXPECT_EQ(FindPlaces(map, u"Angeles", 2).size(), 2U);
    const auto twice = FindPlaces(map, u"baden", 1000);
    EXPECT_EQ(std::set(twice.begin(), twice.end()).size(), twice.size()) << "Baden-Baden is one place";
}

// The table and the map come from two runs of tools: rows must fit, and no other place may be shown for a name.
TEST_F(PlaceIndexTest, PlacesAreFoundUnderTheirOtherNames)
{
    const OtherNames others(map, QString::fromLatin1(kOtherNamesPath));
    const auto placeOf = [&](QStringView typed) {
        const auto rows = others.Find(FoldForSearch(typed));
        return rows.empty() ? std::string() : std::string(map.Place(rows.front().place).name);
    };
    EXPECT_EQ(placeOf(u"München"), "Munich");
    EXPECT_EQ(placeOf(u"cologne"), "Köln");
    EXPECT_TRUE(others.Find("").empty());
    EXPECT_TRUE(OtherNames(map, QStringLiteral("/no/such")).Find("wien").empty());
}

TEST_F(PlaceIndexTest, AnyTextIsTaken)
{
    const char16_t broken[] = {0xD800, u'a', 0};
    for (const QString& text :
         {QString(), QString("   "), QString("zzqqxx"), QString(100000, u'n'), QString::fromUtf16(broken)})
        EXPECT_TRUE(FindPlaces(map, text, 10).empty()) << text.left(10).toStdString();
    EXPECT_TRUE(FindPlaces(map, u"a", 0).empty());
}

} // namespace
} // namespace ruvenmark
