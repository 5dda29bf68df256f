#include "aprs/time_stamp.h"
#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

constexpr double kNear = 1e-5;

TEST(PlainPosition, HemispheresAndOverlays)
{
    const auto report = DecodedPosition("!4903.50s\\07201.75w#");
    EXPECT_NEAR(report.position.latitude, -49.058333, kNear);
    EXPECT_NEAR(report.position.longitude, -72.029167, kNear);
    EXPECT_EQ(report.position.symbol.table, '\\');
    EXPECT_EQ(report.position.symbol.code, '#');
    EXPECT_EQ(DecodedPosition("=4903.50N707201.75E#").position.symbol.table, '7');
}

// Blank digits mean a box; its middle is shown, not its corner, and the latitude's blanks count for both.
TEST(PlainPosition, BlankDigitsGiveTheMiddleOfTheBox)
{
    struct Case {
        std::string_view text;
        double lat, lon;
        int ambiguity;
    };
    const Case cases[] = {
        {"!4903.5 N/07201.7 W-", 49.059167, -72.029167, 1}, {"!4903.  N/07201.  W-", 49.058333, -72.025, 2},
        {"!490 .  N/0720 .  W-", 49.083333, -72.083333, 3}, {"!49  .  N/072  .  W-", 49.5, -72.5, 4},
        {"!490 .  N/07201.75W-", 49.083333, -72.083333, 3},
    };
    for (const Case& test : cases) {
        const auto report = DecodedPosition(test.text);
        EXPECT_NEAR(report.position.latitude, test.lat, kNear) << test.text;
        EXPECT_NEAR(report.position.longitude, test.lon, kNear) << test.text;
        EXPECT_EQ(report.position.ambiguity, test.ambiguity) << test.text;
    }
}

TEST(PlainPosition, EachFaultHasItsReason)
{
    EXPECT_EQ(RefusalOf("!4903.50N/07201.75W"), Refusal::PositionTooShort);
    EXPECT_EQ(RefusalOf("!"), Refusal::PositionTooShort);
    EXPECT_EQ(RefusalOf("!4903.50X/07201.75W-"), Refusal::BadPosition);
    EXPECT_EQ(RefusalOf("!49.0350N/07201.75W-"), Refusal::BadPosition);
    EXPECT_EQ(RefusalOf("!4903.5xN/07201.75W-"), Refusal::BadPosition);
    EXPECT_EQ(RefusalOf("!490 .5 N/07201.75W-"), Refusal::BlanksMisplaced);
    EXPECT_EQ(RefusalOf("!4903.50N/0720 .  W-"), Refusal::BlanksMisplaced);
    EXPECT_EQ(RefusalOf("!9000.00N/07201.75W-"), Refusal::PositionOutOfRange);
    EXPECT_EQ(RefusalOf("!4903.50N/18000.00W-"), Refusal::PositionOutOfRange);
    EXPECT_EQ(RefusalOf("!4960.00N/07201.75W-"), Refusal::PositionOutOfRange);
    EXPECT_EQ(RefusalOf("!4903.50N+07201.75W-"), Refusal::BadSymbolTable);
    EXPECT_EQ(RefusalOf("!4903.50N/07201.75W\x7f"), Refusal::BadPosition);
}

TEST(CompressedPosition, CourseSpeedRangeAndAltitude)
{
    const auto moving = DecodedPosition("=/5L!!<*e7>7P[");
    EXPECT_NEAR(moving.position.latitude, 49.5, kNear);
    EXPECT_NEAR(moving.position.longitude, -72.75, kNear);
    EXPECT_DOUBLE_EQ(*moving.course, 88);
    EXPECT_NEAR(*moving.speed, 36.23, 0.01);

    const auto range = DecodedPosition("=/5L!!<*e7>{?!");
    EXPECT_NEAR(*range.range, 20.12, 0.01);
    EXPECT_FALSE(range.speed);

    const auto altitude = DecodedPosition("=/5L!!<*e7OS]S");
    EXPECT_NEAR(*altitude.altitude, 10004.5, 0.1);
    EXPECT_FALSE(altitude.course);

    const auto still = DecodedPosition("=/5L!!<*e7> sTText");
    EXPECT_FALSE(still.course || still.speed || still.range || still.altitude);
    EXPECT_EQ(still.comment.ToString(), "Text");
}

// The digits 0 to 9 cannot start a compressed position, where they would read as a plain one: they come as a to j.
TEST(CompressedPosition, OverlayDigitsAndPlainText)
{
    EXPECT_EQ(DecodedPosition("!j5L!!<*e7# sT").position.symbol.table, '9');
    EXPECT_EQ(DecodedPosition("!A5L!!<*e7# sT").position.symbol.table, 'A');
    EXPECT_EQ(RefusalOf("!SD Link 147.375 w/ 146.2 tone"), Refusal::BadCompressed);
    EXPECT_EQ(RefusalOf("!/5L!!<*e"), Refusal::PositionTooShort);
    EXPECT_EQ(RefusalOf("!/{{{{{{{{> sT"), Refusal::PositionOutOfRange);
}

TEST(Extension, CourseAndSpeed)
{
    const auto moving = DecodedPosition("!4903.50N/07201.75W>088/036 on the road");
    EXPECT_DOUBLE_EQ(*moving.course, 88);
    EXPECT_DOUBLE_EQ(*moving.speed, 36);
    EXPECT_EQ(moving.comment.ToString(), "on the road");

    const auto unknown = DecodedPosition("!4903.50N/07201.75W>.../...x");
    EXPECT_FALSE(unknown.course || unknown.speed);
    EXPECT_EQ(unknown.comment.ToString(), "x");

    const auto impossible = DecodedPosition("!4903.50N/07201.75W>361/010");
    EXPECT_FALSE(impossible.course);
    EXPECT_DOUBLE_EQ(*impossible.speed, 10);
    // The size and colour of an area object are no movement.
    EXPECT_FALSE(DecodedPosition("!4903.50N\\07201.75Wl100/010").speed);
}

TEST(Extension, ReachAndRange)
{
    const auto report = DecodedPosition("=4903.50N/07201.75W#PHG5132/W2, hill");
    ASSERT_TRUE(report.reach);
    EXPECT_EQ(report.reach->digits, "5132");
    EXPECT_EQ(report.reach->power, 25);
    EXPECT_EQ(report.reach->height, 20);
    EXPECT_EQ(report.reach->gain, 3);
    EXPECT_EQ(report.reach->directivity, "90");
    EXPECT_EQ(report.comment.ToString(), "W2, hill");

    EXPECT_EQ(DecodedPosition("=4903.50N/07201.75W#PHG51326/x").reach->digits, "51326");
    EXPECT_EQ(DecodedPosition("=4903.50N/07201.75W#PHG7;70").reach->height, 10 * 2048);
    EXPECT_FALSE(DecodedPosition("=4903.50N/07201.75W#PHG7~70").reach->height); // 10 * 2^78 feet.
    EXPECT_EQ(DecodedPosition("=4903.50N/07201.75W#PHG7770").reach->directivity, "Omni");
    EXPECT_FALSE(DecodedPosition("=4903.50N/07201.75W#PHGx").reach);
    EXPECT_DOUBLE_EQ(*DecodedPosition("=4903.50N/07201.75W#RNG0050").range, 50);

    const auto finding = DecodedPosition("=4903.50N/07201.75W#DFS2360");
    EXPECT_TRUE(finding.reach->bDirectionFinding);
    EXPECT_FALSE(finding.reach->power);
}

struct CommentCase {
    std::string_view text;
    std::optional<double> altitude;
    std::string_view comment;
    std::string_view telemetry;
};

// What is cut out of the middle must not take its neighbours along, nor be taken where it only looks alike.
TEST(Comment, ExtrasAreCutOut)
{
    const CommentCase cases[] = {
        {"/A=001234", 1234, "", ""},
        {"before/A=-00042after", -42, "beforeafter", ""},
        {"a/A=000100b/A=000200", 100, "ab/A=000200", ""},
        {"a/A=12345 b", std::nullopt, "a/A=12345 b", ""},
        {"/A=1234567", 123456, "7", ""},
        {"a|ss11223344bb!\"|b", std::nullopt, "ab", "ss11223344bb!\""},
        {"a|ss1|b", std::nullopt, "a|ss1|b", ""},
        {"a|ss|b", std::nullopt, "a|ss|b", ""},
        {"a|3", std::nullopt, "a|3", ""},
        {"a!W12!b/A=000001c|ss11|d", 1, "abcd", "ss11"},
        {"a!W1!b", std::nullopt, "a!W1!b", ""},
        {"  both ends  ", std::nullopt, "both ends", ""},
        {"PHG51323/A=000320 gate", 320, "gate", ""},
        {"!W12!", std::nullopt, "", ""},
    };
    for (const CommentCase& test : cases) {
        const auto report = DecodedPosition(std::string("!4903.50N/07201.75W-").append(test.text));
        EXPECT_EQ(report.altitude, test.altitude) << test.text;
        EXPECT_EQ(report.comment.ToString(), test.comment) << test.text;
        EXPECT_EQ(report.telemetry, test.telemetry) << test.text;
        EXPECT_LE(report.comment.Count(), Comment::kMaxPieces);
    }
}

// Further digits move away from the equator and the zero meridian on every side.
TEST(Comment, DaoMovesOutwards)
{
    const auto human = DecodedPosition("!4903.50S/07201.75W-!W58!");
    EXPECT_NEAR(human.position.latitude, -(49 + 3.505 / 60), 1e-9);
    EXPECT_NEAR(human.position.longitude, -(72 + 1.758 / 60), 1e-9);
    const auto base91 = DecodedPosition("!4903.50N/07201.75E-x!w{{!y");
    EXPECT_NEAR(base91.position.latitude, 49 + (3.5 + 90.0 / 9100) / 60, 1e-9);
    EXPECT_EQ(base91.comment.ToString(), "xy");
    const auto last = DecodedPosition("!4903.50N/07201.75E-!W11!!W99!");
    EXPECT_NEAR(last.position.latitude, 49 + 3.509 / 60, 1e-9);
    const auto datum = DecodedPosition("!4903.50N/07201.75E-!w  !");
    EXPECT_NEAR(datum.position.latitude, 49 + 3.5 / 60, 1e-9);
    EXPECT_TRUE(datum.comment.IsEmpty());
    const auto pole = DecodedPosition("!E!!!!z490v   !W12!");
    EXPECT_EQ(pole.position.latitude, 90.0) << "no digit leads beyond the pole";
}

TEST(Time, FormsAndZones)
{
    const auto zulu = DecodedPosition("/092345z4903.50N/07201.75W>").time;
    EXPECT_EQ(zulu.form, TimeForm::DayHourMinute);
    EXPECT_EQ(zulu.day * 10000 + zulu.hour * 100 + zulu.minute, 92345);
    EXPECT_FALSE(zulu.bLocal);
    EXPECT_TRUE(DecodedPosition("@092345/4903.50N/07201.75W>").time.bLocal);
    const auto clock = DecodedPosition("@234517h4903.50N/07201.75W>").time;
    EXPECT_EQ(clock.form, TimeForm::HourMinuteSecond);
    EXPECT_EQ(clock.hour * 10000 + clock.minute * 100 + clock.second, 234517);
}

// A clock that is wrong must not cost the position; text that is no time at all must not become one by chance.
TEST(Time, BadTimesKeepThePosition)
{
    for (const std::string_view time : {"322561z", "......z", "092460z", "002345z", "000000Z", "092345x"}) {
        const auto report = DecodedPosition(std::string("@").append(time).append("4903.50N/07201.75W>"));
        EXPECT_TRUE(report.time.IsBad()) << time;
        EXPECT_NEAR(report.position.latitude, 49.058333, kNear) << time;
    }
    EXPECT_EQ(RefusalOf("@Greetings from the hut up here"), Refusal::BadPosition);
    EXPECT_EQ(RefusalOf("@4403.76N/12302.48WT100 R50m"), Refusal::BadPosition);
    EXPECT_EQ(RefusalOf("@092345z"), Refusal::PositionTooShort);
}

TEST(LateBang, WithinTheFirstFortyBytes)
{
    EXPECT_NEAR(DecodedPosition("Valley digi !4903.50N/07201.75W-hi").position.latitude, 49.058333, kNear);
    const std::string position = "!4903.50N/07201.75W-";
    EXPECT_EQ(RefusalOf(std::string(39, 'x') + position), Refusal::None);
    EXPECT_EQ(RefusalOf(std::string(40, 'x') + position), Refusal::UnknownType);
    EXPECT_EQ(RefusalOf("x!nothing !4903.50N/07201.75W-"), Refusal::UnknownType);
    EXPECT_EQ(RefusalOf("Hello from the valley"), Refusal::UnknownType);
}

} // namespace
} // namespace ruvenmark::aprs
