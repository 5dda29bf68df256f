#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

TEST(Object, NameStateTimeAndPosition)
{
    const auto object = Decoded<ObjectReport>("N0AAA>APRS42:;LEADER 1 *092345z4903.50N/07201.75W>088/036go");
    EXPECT_EQ(object.name, "LEADER 1");
    EXPECT_TRUE(object.bAlive);
    EXPECT_FALSE(object.bItem);
    EXPECT_EQ(object.report.time.text, "092345z");
    EXPECT_NEAR(object.report.position.latitude, 49.058333, 1e-5);
    EXPECT_DOUBLE_EQ(*object.report.speed, 36);
    EXPECT_EQ(object.report.comment.ToString(), "go");
    EXPECT_FALSE(Decoded<ObjectReport>("N0AAA>APRS42:;LEADER   _092345z4903.50N/07201.75W>").bAlive);
    EXPECT_EQ(Decoded<ObjectReport>("N0AAA>APRS42:;HQ       *092345z/5L!!<*e7> sT").report.position.form,
              PositionForm::Compressed);
}

TEST(Object, WeatherObject)
{
    const auto object =
        Decoded<ObjectReport>("N0AAA>APRS42:;STATION 7*092345z4903.50N/07201.75W_220/004g005t077r000p000P000h50b09900");
    ASSERT_TRUE(object.report.weather);
    EXPECT_DOUBLE_EQ(*object.report.weather->gust, 5);
    EXPECT_DOUBLE_EQ(*object.report.weather->pressure, 990);
}

// Objects without their time would read as compressed positions somewhere else.
TEST(Object, Faults)
{
    EXPECT_EQ(RefusalOf(";LEADER   !092345z4903.50N/07201.75W>"), Refusal::BadObject);
    EXPECT_EQ(RefusalOf(";LEADER"), Refusal::BadObject);
    EXPECT_EQ(RefusalOf(";LEAD\x01R   *092345z4903.50N/07201.75W>"), Refusal::BadObject);
    EXPECT_EQ(RefusalOf(";LEADER   *092345z"), Refusal::BadObject);
    EXPECT_EQ(RefusalOf(";LEADER   *092345z4903.50N"), Refusal::PositionTooShort);
    EXPECT_EQ(RefusalOf(";LEADER   *4903.50N/07201.75W> no time"), Refusal::BadPosition);
}

TEST(Item, NamesFromThreeToNine)
{
    struct Case {
        std::string_view text;
        std::string_view name;
        bool bAlive;
    };
    const Case cases[] = {
        {")AID!4903.50N/07201.75W-", "AID", true},
        {")AID #2!4903.50N/07201.75W-", "AID #2", true},
        {")ABCDEFGHI_4903.50N/07201.75W-", "ABCDEFGHI", false},
        {")HUT!/5L!!<*e79 sT", "HUT", true},
    };
    for (const Case& test : cases) {
        const std::string line = std::string("N0AAA>APRS42:").append(test.text);
        const auto item = Decoded<ObjectReport>(line);
        EXPECT_EQ(item.name, test.name);
        EXPECT_EQ(item.bAlive, test.bAlive);
        EXPECT_TRUE(item.bItem);
    }
    EXPECT_EQ(RefusalOf(")AB!4903.50N/07201.75W-"), Refusal::BadItem);
    EXPECT_EQ(RefusalOf(")ABCDEFGHIJ!4903.50N/07201.75W-"), Refusal::BadItem);
    EXPECT_EQ(RefusalOf(")A_B!4903.50N/07201.75W-"), Refusal::BadItem);
    EXPECT_EQ(RefusalOf(")ITEM"), Refusal::BadItem);
}

} // namespace
} // namespace ruvenmark::aprs
