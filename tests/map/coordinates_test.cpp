#include "map/age.h"
#include "map/coordinates.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ruvenmark {
namespace {

void ExpectNear(std::string_view text, GeoPoint expected)
{
    const auto point = ReadLatLon(text);
    ASSERT_TRUE(point) << text;
    EXPECT_NEAR(point->lat, expected.lat, 1e-6) << text;
    EXPECT_NEAR(point->lon, expected.lon, 1e-6) << text;
}

// As they stand in logs, on web pages, in receivers and on the air.
TEST(Coordinates, AreReadAsPeopleWriteThem)
{
    for (const char* text :
         {" +48.125,-11.575 ", "48.125 -11.575", "48.125/-11.575", "N 48.125 W 11.575", "11.575 W, 48.125 N",
          "48°07.500'N 011°34.500'W", "48 7.5, -11 34.5", "48 07 30 N 11 34 30 W", "N48°7'30\" W11°34'30\"",
          "n48 7.5 w11 34.5", "48°07′30″N 11°34′30″W"})
        ExpectNear(text, {48.125, -11.575});
    ExpectNear("-0.5, 180", {-0.5, 180});
    ExpectNear("0 30 S 0 30 E", {-0.5, 0.5});
}

// A call or a name must never be taken for a place, nor half of a text for the whole.
TEST(Coordinates, RefuseWhatIsNone)
{
    for (const char* text :
         {"", "48", "48, ", "N, E", "91, 0", "0, 181", "48 60, 11", "48.5 7, 11", "48 N, 11", "48 N 11 N", "48 -7, 11",
          "48..1, 3", "48, 11x", "1e3, 4", "nan, 1", "N0CALL", "W1AW", "S57"})
        EXPECT_FALSE(ReadLatLon(text)) << text;
    for (const char* text : {"48.1, 11.5, 3", "-48 N, 11 E", "48 7 30 5 N 11 E", "1 2 3 4 5 6 7 8 9 10 11 12 13"})
        EXPECT_FALSE(ReadLatLon(text)) << text;
}

TEST(Coordinates, LocatorsGoBothWays)
{
    EXPECT_EQ(LocatorOf({48.14666, 11.60833}), "JN58td"); // Munich, as in the definition of the system.
    EXPECT_EQ(LocatorOf({-34.91, -56.21166}, 8), "GF15vc41");
    EXPECT_EQ(LocatorOf({90, 180}), "RR99xx");
    EXPECT_EQ(LocatorOf({-90, -180}, 4), "AA00");
    for (const std::string locator : {"JN58", "jn58TD", "GF15vc41", "RR99xx"}) {
        const auto point = ReadLocator(locator);
        ASSERT_TRUE(point) << locator;
        EXPECT_STRCASEEQ(LocatorOf(*point, locator.size()).c_str(), locator.c_str()) << "the middle lies inside";
    }
    for (const char* text : {"", "JN5", "SN58", "JN58t", "JN58zz", "JN58td4x", "JNA8td", "JN58td4155"})
        EXPECT_FALSE(ReadLocator(text)) << text;
}

// Each form reads back to the place it was written from; minutes must carry and never say 60.
TEST(Coordinates, AreWrittenSoThatTheyReadBack)
{
    EXPECT_EQ(CoordinateText({47.123456789, 8.5}, CoordinateForm::Decimal), "47.12346, 8.5");
    EXPECT_EQ(CoordinateText({47.123456, -8.5}, CoordinateForm::Minutes), "47°07.407'N 008°30.000'W");
    EXPECT_EQ(CoordinateText({-0.99999999, 9.99999999}, CoordinateForm::Minutes), "01°00.000'S 010°00.000'E");
    EXPECT_EQ(CoordinateText({48.14666, 11.60833}, CoordinateForm::Locator), "JN58td");
    for (const GeoPoint point : {GeoPoint{-33.87654, 151.2}, GeoPoint{0, -0.00001}, GeoPoint{89.99999, -179.99999}})
        for (const auto form : {CoordinateForm::Decimal, CoordinateForm::Minutes}) {
            const auto again = ReadLatLon(CoordinateText(point, form));
            ASSERT_TRUE(again) << CoordinateText(point, form);
            EXPECT_NEAR(again->lat, point.lat, 1.7e-5);
            EXPECT_NEAR(again->lon, point.lon, 1.7e-5);
        }
}

// An age below nothing is that of a clock that was put back.
TEST(Age, IsToldInTheUnitThatTellsMost)
{
    constexpr std::uint32_t kHeard = 1000000;
    const std::pair<int, const char*> kAges[] = {{-50, "just now"},
                                                 {59, "just now"},
                                                 {60, "1 min ago"},
                                                 {3600, "1 h ago"},
                                                 {3600 * 25 + 120, "25 h 2 min ago"},
                                                 {3600 * 48, "2 days ago"}};
    for (const auto& [seconds, text] : kAges)
        EXPECT_EQ(AgeText(kHeard + seconds, kHeard), text);
    EXPECT_EQ(AgeText(5000, 0), "");
    EXPECT_TRUE(IsFaded(kHeard + 1801, kHeard, 30));
    EXPECT_FALSE(IsFaded(kHeard + 1800, kHeard, 30));
    EXPECT_FALSE(IsFaded(kHeard + 1801, kHeard, 0));
    EXPECT_FALSE(IsFaded(kHeard, 0, 30)) << "a marker that no report made";
}

} // namespace
} // namespace ruvenmark
