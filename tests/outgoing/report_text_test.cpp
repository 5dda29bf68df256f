#include "aprs/decode.h"
#include "outgoing/object_report.h"
#include "outgoing/position_report.h"
#include "outgoing/report_text.h"
#include "outgoing/symbol_lists.h"
#include "outgoing/weather_report.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <tuple>
#include <utility>

namespace ruvenmark {
namespace {

// The seams of the codes; some are no digits.
TEST(ReportText, CodesOfPowerHeightAndDirection)
{
    for (const auto& [power, code] : {std::pair(1, '1'), {4, '2'}, {5, '3'}, {100, ':'}, {5000, 'w'}})
        EXPECT_EQ(PowerCode(static_cast<std::int16_t>(power)), code) << power;
    for (const auto& [height, code] : {std::pair(10, '0'), {11, '1'}, {20, '1'}, {40, '2'}, {2000000000, 'L'}})
        EXPECT_EQ(HeightCode(height), code) << height;
    for (const auto& [direction, code] : {std::pair(0, '0'), {1, '1'}, {45, '1'}, {46, '2'}, {90, '2'}, {360, '8'}})
        EXPECT_EQ(DirCode(static_cast<std::int16_t>(direction)), code) << direction;
    EXPECT_EQ(PhgText(25, 40, 3, 0), "PHG5230");
    EXPECT_EQ(PhgText(0, 40, 3, 0), "");
    EXPECT_EQ(PhgText(25, 0, 3, 90), "");
    EXPECT_THROW(std::ignore = PhgText(25, 40, 3, 32767), Failure); // No character stands for it.
}

// A carry into the degrees, a wrong side of 0 or halves rounded away would move the station.
TEST(ReportText, DegreesAndMinutes)
{
    EXPECT_EQ(LatitudeText(36.99999, '/'), "3660.00N/");
    EXPECT_EQ(LatitudeText(0, '/'), "0000.00N/");
    EXPECT_EQ(LatitudeText(-5.5 / 60, '\\'), "0005.50S\\");
    EXPECT_EQ(LongitudeText(0), "00000.00E");
    EXPECT_EQ(LongitudeText(-122.25), "12215.00W");
    EXPECT_EQ(LatitudeText(1 + 0.375 / 60 * 1.0, '/'), "0100.38N/"); // 37.5 to the even 38
    EXPECT_EQ(LatitudeText(0.125 / 60, '/'), "0000.12N/");           // 12.5 to the even 12
}

TEST(ReportText, ThePositionAsATextWithItsLimit)
{
    PositionReportData data{.lat = 37.5,
                            .lon = -122.25,
                            .symbol = 9,
                            .motion = {},
                            .power = 25,
                            .height = 40,
                            .gain = 3,
                            .directivity = 0,
                            .altitude = 300,
                            .comment = "hello"};
    EXPECT_EQ(PositionReportText(data), "!3730.00N/12215.00W>PHG5230/A=000300hello");
    data.altitude = -12;
    EXPECT_EQ(PositionReportText(data), "!3730.00N/12215.00W>PHG5230/A=-00012hello");
    data.motion = "090/010"; // In the place of the antenna.
    EXPECT_EQ(PositionReportText(data), "!3730.00N/12215.00W>090/010/A=-00012hello");
    const std::string longest(27, 'x');
    data.comment = longest;
    EXPECT_TRUE(PositionReportText(data));
    const std::string tooLong(28, 'x');
    data.comment = tooLong;
    EXPECT_FALSE(PositionReportText(data));
}

TEST(ReportText, WeatherAndObjects)
{
    EXPECT_EQ(WeatherReportText({10, 9, 5, 56}, {"220", "4", "5", "77", "0", "0", "0", "50", "10150"}),
              "_10090556c220s004g005t077r000p000P000h50b10150");
    EXPECT_EQ(WeatherReportText({1, 2, 3, 4}, {"0", "0", "0", "-5", "1234", "0", "0", "00", "0"}),
              "_01020304c000s000g000t-05r1234p000P000h00b00000");
    ObjectForm::Fields fields{.txtName = "FLOOD",
                              .txtLat = "37.5",
                              .txtLon = "-122.25",
                              .txtAlt = "300",
                              .txtComment = "hello",
                              .cboState = 0,
                              .cboSymbol = 2};
    EXPECT_EQ(ObjectReportText(fields, {10, 9, 5, 56}), ";FLOOD    *090556z3730.00N\\12215.00WS/A=300hello");
    fields.txtName = "NINECHARS";
    fields.cboState = 1;
    fields.cboSymbol = 0;
    fields.txtAlt.clear();
    EXPECT_EQ(ObjectReportText(fields, {10, 9, 5, 56}), ";NINECHARS_090556z3730.00N\\12215.00W)hello");
    fields.txtComment.assign(44, 'x');
    EXPECT_FALSE(ObjectReportText(fields, {10, 9, 5, 56}));
}

TEST(SymbolLists, GiveTheDefaultOutsideAndTheirCharactersInside)
{
    for (const auto& [index, code] :
         {std::pair(-1, ')'), {0, ')'}, {3, '\''}, {9, '>'}, {21, '\\'}, {30, 'y'}, {31, ')'}})
        EXPECT_EQ(SymbolCode(PositionSymbols(), index), code) << index;
    for (const auto& [index, code] : {std::pair(-1, ')'), {3, '`'}, {9, '\''}, {21, '1'}, {28, '8'}, {29, ')'}})
        EXPECT_EQ(SymbolCode(ObjectSymbols(), index), code) << index;
}

// What is sent can be read back, whatever the fields are.
TEST(ReportText, IsReadBackAsItWasMeant)
{
    std::mt19937 random(4711); // NOLINT: the same every time.
    const auto between = [&](double low, double high) { return std::uniform_real_distribution(low, high)(random); };
    constexpr double kHalfHundredth = 0.5 / 6000 + 1e-9;
    for (int i = 0; i < 5000; ++i) {
        const std::string comment(static_cast<std::size_t>(between(0, 25)), static_cast<char>('a' + i % 26));
        PositionReportData data{.lat = between(-89.9, 89.9),
                                .lon = between(-179.9, 179.9),
                                .symbol = static_cast<std::int32_t>(between(0, 31)),
                                .motion = {},
                                .power = static_cast<std::int16_t>(between(0, 81)),
                                .height = static_cast<std::int32_t>(between(0, 5000)),
                                .gain = static_cast<std::int16_t>(between(0, 10)),
                                .directivity = static_cast<std::int16_t>(between(0, 361)),
                                .altitude = static_cast<std::int32_t>(between(1, 99999)),
                                .comment = comment};
        if (data.symbol == 22) // A weather station's comment is weather.
            data.symbol = 9;
        const std::string line = "N0AAA>APRS:" + PositionReportText(data).value();
        const aprs::Packet packet = aprs::Decode(line);
        const auto* report = std::get_if<aprs::PositionReport>(&packet.body);
        ASSERT_NE(report, nullptr) << line;
        EXPECT_NEAR(report->position.latitude, data.lat, kHalfHundredth) << line;
        EXPECT_NEAR(report->position.longitude, data.lon, kHalfHundredth) << line;
        EXPECT_EQ(report->altitude, data.altitude) << line;
        EXPECT_EQ(report->position.symbol.code, SymbolCode(PositionSymbols(), data.symbol)) << line;
        EXPECT_EQ(report->comment.ToString(), comment) << line;
    }
}

} // namespace
} // namespace ruvenmark
