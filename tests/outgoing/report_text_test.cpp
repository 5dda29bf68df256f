#include "aprs/decode.h"
#include "outgoing/object_report.h"
#include "outgoing/position_report.h"
#include "outgoing/report_text.h"
#include "outgoing/symbol_lists.h"
#include "outgoing/weather_report.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <tuple>
#include <utility>

namespace ruvenmark {
namespace {

TEST(ReportText, PadsBehindTheSign)
{
    for (const auto& [text, width, padded] :
         {std::tuple("-12", 6, "-00012"), std::tuple("5", 2, "05"), std::tuple("1234", 3, "1234")})
        EXPECT_EQ(Padded(text, static_cast<std::int16_t>(width)), padded);
}

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
class ReadBack : public testing::Test {
protected:
    double between(double low, double high) { return std::uniform_real_distribution(low, high)(m_random); }
    std::string Value(int low, int high) { return std::to_string(std::uniform_int_distribution(low, high)(m_random)); }
    std::string Letters(char first, int most)
    {
        std::string text(static_cast<std::size_t>(between(1, most + 1)), ' ');
        for (char& c : text)
            c = static_cast<char>(first + static_cast<int>(between(0, 26)));
        return text;
    }

    static constexpr double kHalfHundredth = 0.5 / 6000 + 1e-9;

private:
    std::mt19937 m_random{4711}; // NOLINT: the same every time.
};

TEST_F(ReadBack, Positions)
{
    for (int i = 0; i < 5000; ++i) {
        const std::string comment = Letters('a', 24);
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

TEST_F(ReadBack, Objects)
{
    for (int i = 0; i < 3000; ++i) {
        const bool bAlive = between(0, 1) < 0.5;
        ObjectForm::Fields fields{.txtName = Letters('A', 9),
                                  .txtLat = std::to_string(between(-89.9, 89.9)),
                                  .txtLon = std::to_string(between(-179.9, 179.9)),
                                  .txtAlt =
                                      i % 2 == 0 ? "" : Value(100000, 999999), // As many digits as a reader wants.
                                  .txtComment = Letters('a', 34),
                                  .cboState = bAlive ? 0 : 1,
                                  .cboSymbol = static_cast<std::int32_t>(between(0, 29))};
        const UtcTime utc{1, static_cast<std::int32_t>(between(1, 32)), static_cast<std::int32_t>(between(0, 24)),
                          static_cast<std::int32_t>(between(0, 60))};
        const std::string line = "N0AAA>APRS:" + ObjectReportText(fields, utc).value();
        const aprs::Packet packet = aprs::Decode(line);
        const auto* object = std::get_if<aprs::ObjectReport>(&packet.body);
        ASSERT_NE(object, nullptr) << line;
        EXPECT_EQ(object->name, fields.txtName) << line;
        EXPECT_EQ(object->bAlive, bAlive) << line;
        EXPECT_EQ(object->report.time.day * 10000 + object->report.time.hour * 100 + object->report.time.minute,
                  utc.day * 10000 + utc.hour * 100 + utc.minute)
            << line;
        EXPECT_NEAR(object->report.position.latitude, std::stod(fields.txtLat), kHalfHundredth) << line;
        EXPECT_NEAR(object->report.position.longitude, std::stod(fields.txtLon), kHalfHundredth) << line;
        EXPECT_EQ(object->report.position.symbol.table, '\\') << line;
        EXPECT_EQ(object->report.position.symbol.code, SymbolCode(ObjectSymbols(), fields.cboSymbol)) << line;
        EXPECT_EQ(object->report.altitude.value_or(0), fields.txtAlt.empty() ? 0 : std::stod(fields.txtAlt)) << line;
        EXPECT_EQ(object->report.comment.ToString(), fields.txtComment) << line;
    }
}

TEST_F(ReadBack, Weather)
{
    for (int i = 0; i < 3000; ++i) {
        const WeatherValues values{Value(1, 360), Value(0, 250), Value(0, 250), Value(-99, 150),   Value(0, 999),
                                   Value(0, 999), Value(0, 999), Value(1, 99),  Value(8500, 10900)};
        const UtcTime utc{static_cast<std::int32_t>(between(1, 13)), static_cast<std::int32_t>(between(1, 29)),
                          static_cast<std::int32_t>(between(0, 24)), static_cast<std::int32_t>(between(0, 60))};
        const std::string line = "N0AAA>APRS:" + WeatherReportText(utc, values);
        const aprs::Packet packet = aprs::Decode(line);
        const auto* report = std::get_if<aprs::WeatherReport>(&packet.body);
        ASSERT_NE(report, nullptr) << line;
        EXPECT_EQ((report->time.month * 100 + report->time.day) * 10000 + report->time.hour * 100 + report->time.minute,
                  (utc.month * 100 + utc.day) * 10000 + utc.hour * 100 + utc.minute)
            << line;
        const aprs::Weather& weather = report->weather;
        const std::array<std::optional<double>, 9> read = {weather.windDirection, weather.windSpeed, weather.gust,
                                                           weather.temperature,   weather.rainHour,  weather.rainDay,
                                                           weather.rainMidnight,  weather.humidity,  weather.pressure};
        constexpr std::array<double, 9> kUnits = {1, 1, 1, 1, 100, 100, 100, 1, 10};
        for (std::size_t field = 0; field < read.size(); ++field)
            EXPECT_NEAR(read[field].value_or(-1000) * kUnits[field], std::stod(values[field]), 1e-6)
                << line << " field " << field;
    }
}

} // namespace
} // namespace ruvenmark
