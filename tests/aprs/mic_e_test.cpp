#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

constexpr double kNear = 1e-5;

std::string Line(std::string_view dest, std::string_view body)
{
    return std::string("N0AAA-9>").append(dest).append(",WIDE1-1:`").append(body);
}

TEST(MicE, PositionMovementAndMessage)
{
    const auto report = DecodedPosition("`(_fn\"Oj/", "S32U6T");
    EXPECT_NEAR(report.position.latitude, 33.427333, kNear);
    EXPECT_NEAR(report.position.longitude, -12.129, kNear);
    EXPECT_EQ(report.position.symbol.table, '/');
    EXPECT_EQ(report.position.symbol.code, 'j');
    EXPECT_DOUBLE_EQ(*report.speed, 20);
    EXPECT_DOUBLE_EQ(*report.course, 251);
    EXPECT_EQ(report.micEStatus, "Returning");
}

// Longitudes around the seams of their coding: 0-9, 10-99, 100-109 and 110-179 degrees.
TEST(MicE, LongitudeSeams)
{
    const auto longitude = [](std::string_view dest, std::string_view body) {
        const std::string line = Line(dest, body);
        return Decoded<PositionReport>(line).position.longitude;
    };
    EXPECT_NEAR(longitude("S32UVT", "v_fn\"Oj/"), -(0 + 7.74 / 60), kNear);
    EXPECT_NEAR(longitude("S32UVT", "\x7f_fn\"Oj/"), -(9 + 7.74 / 60), kNear);
    EXPECT_NEAR(longitude("S32U6T", "\x7f_fn\"Oj/"), -(99 + 7.74 / 60), kNear);
    EXPECT_NEAR(longitude("S32UVT", "l_fn\"Oj/"), -(100 + 7.74 / 60), kNear);
    EXPECT_NEAR(longitude("S32UVT", "&_fn\"Oj/"), -(110 + 7.74 / 60), kNear);
}

TEST(MicE, MessagesOfBothTables)
{
    const auto status = [](std::string_view dest) {
        const std::string line = Line(dest, "(_fn\"Oj/");
        return std::string(Decoded<PositionReport>(line).micEStatus);
    };
    EXPECT_EQ(status("SSRU6T"), "Off Duty");
    EXPECT_EQ(status("SS2U6T"), "En Route");
    EXPECT_EQ(status("332U6T"), "Emergency");
    EXPECT_EQ(status("CCCU6T"), "Custom-0");
    EXPECT_EQ(status("33CU6T"), "Custom-6");
    EXPECT_EQ(status("SC2U6T"), "Unknown");
}

TEST(MicE, BlankDigits)
{
    const auto report = DecodedPosition("`(_fn\"Oj/", "S32ULL");
    EXPECT_EQ(report.position.ambiguity, 2);
    EXPECT_NEAR(report.position.latitude, 33 + 25.5 / 60, kNear);
    EXPECT_NEAR(std::abs(report.position.longitude), 12 + 7.5 / 60, kNear);
    EXPECT_EQ(Decode(Line("S3LU6T", "(_fn\"Oj/")).refusal, Refusal::BlanksMisplaced);
    EXPECT_EQ(Decode(Line("SLLLLL", "(_fn\"Oj/")).refusal, Refusal::BlanksMisplaced);
}

TEST(MicE, Faults)
{
    EXPECT_EQ(Decode(Line("BEACON", "(_fn\"Oj/")).refusal, Refusal::BadMicEDestination);
    EXPECT_EQ(Decode(Line("S32U6", "(_fn\"Oj/")).refusal, Refusal::BadMicEDestination);
    EXPECT_EQ(Decode(Line("S32UAT", "(_fn\"Oj/")).refusal, Refusal::BadMicEDestination);
    EXPECT_EQ(Decode(Line("S32U6T", "(_fn\"Oj")).refusal, Refusal::PositionTooShort);
    EXPECT_EQ(Decode(Line("S32U6T", "(_\x1bn\"Oj/")).refusal, Refusal::BadMicE);
    EXPECT_EQ(Decode(Line("S32U6T", "(_fn\"Oj-")).refusal, Refusal::BadSymbolTable);
    EXPECT_EQ(Decode(Line("S96U6T", "(_fn\"Oj/")).refusal, Refusal::PositionOutOfRange);
}

TEST(MicE, AltitudeRadioAndText)
{
    struct Case {
        std::string_view text;
        std::optional<int> metres;
        std::string_view device, comment, telemetry;
    };
    const Case cases[] = {
        {"]\"4T}Hello=", 61, "Kenwood TM-D710", "Hello", ""},
        {">Hello", std::nullopt, "Kenwood TH-D7A", "Hello", ""},
        {"`\"3r}146.520MHz_%", 0, "Yaesu FTM-400DR", "146.520MHz", ""},
        {"\"4T}", 61, "", "", ""},
        {" \"4T}old", 61, "", "old", ""},
        {"'\"69}a|!\"&7'M|b!wTD!|3", 216, "Byonics TinyTrak3", "ab", "!\"&7'M"},
        {"`x}y", std::nullopt, "", "x}y", ""},
    };
    for (const Case& test : cases) {
        const std::string line = Line("S32U6T", std::string("(_fn\"Oj/").append(test.text));
        const auto report = Decoded<PositionReport>(line);
        ASSERT_EQ(report.altitude.has_value(), test.metres.has_value()) << test.text;
        if (test.metres) {
            EXPECT_NEAR(*report.altitude * 0.3048, *test.metres, 0.01) << test.text;
        }
        EXPECT_EQ(report.device, test.device) << test.text;
        EXPECT_EQ(report.comment.ToString(), test.comment) << test.text;
        EXPECT_EQ(report.telemetry, test.telemetry) << test.text;
    }
}

} // namespace
} // namespace ruvenmark::aprs
