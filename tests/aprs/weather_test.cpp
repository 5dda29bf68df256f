#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

Weather WeatherOf(std::string_view text)
{
    const auto report = DecodedPosition(std::string("!4903.50N/07201.75W_").append(text));
    EXPECT_TRUE(report.weather) << text;
    return report.weather.value_or(Weather());
}

TEST(Weather, FullReport)
{
    const Weather weather = WeatherOf("220/004g005t077r012p345P678h50b09900L123s004wXYZ");
    EXPECT_EQ(weather.windDirection, 220);
    EXPECT_EQ(weather.windSpeed, 4);
    EXPECT_EQ(weather.gust, 5);
    EXPECT_EQ(weather.temperature, 77);
    EXPECT_EQ(weather.rainHour, 0.12);
    EXPECT_EQ(weather.rainDay, 3.45);
    EXPECT_EQ(weather.rainMidnight, 6.78);
    EXPECT_EQ(weather.humidity, 50);
    EXPECT_EQ(weather.pressure, 990);
    EXPECT_EQ(weather.luminosity, 123);
    EXPECT_EQ(weather.snowDay, 4);
}

// Dots and blanks are "not known", never zero, and must not end the reading of what follows them.
TEST(Weather, UnknownValues)
{
    const Weather weather = WeatherOf(".../...g...t...r...p   P...h..b10231");
    EXPECT_FALSE(weather.windDirection || weather.windSpeed || weather.gust || weather.temperature);
    EXPECT_FALSE(weather.rainHour || weather.rainDay || weather.rainMidnight || weather.humidity);
    EXPECT_EQ(weather.pressure, 1023.1);
    EXPECT_EQ(WeatherOf("   /   g   t077").temperature, 77);
}

TEST(Weather, Oddities)
{
    EXPECT_EQ(WeatherOf("220/004t-07").temperature, -7);
    EXPECT_EQ(WeatherOf("220/004g005t077h00").humidity, 100);
    EXPECT_FALSE(WeatherOf("220/004g005t077h101").humidity);
    EXPECT_EQ(WeatherOf("220/004g005t077l234").luminosity, 1234);
    EXPECT_EQ(WeatherOf("220/004g005t077p000....h16").humidity, 16);
    EXPECT_EQ(WeatherOf("220/004g005t077#123b10001").pressure, 1000.1);
    EXPECT_EQ(WeatherOf("g010t054b10073").gust, 10);
    EXPECT_FALSE(WeatherOf("g010t054").windSpeed);
}

// Words behind the values must not be read as values.
TEST(Weather, CommentBehindTheValues)
{
    const auto report = DecodedPosition("!4903.50N/07201.75W_220/004g005t077h55.DsXY r2d2 at P5 ws2300/A=000100");
    EXPECT_FALSE(report.weather->rainHour || report.weather->rainMidnight || report.weather->snowDay);
    EXPECT_EQ(report.comment.ToString(), ".DsXY r2d2 at P5 ws2300");
    EXPECT_EQ(report.altitude, 100);
}

TEST(Weather, StationWithoutWeatherIsAPosition)
{
    for (const std::string_view text : {"Home of a station", "PHG5130 no weather", "tower", "g", ""}) {
        const auto report = DecodedPosition(std::string("!4903.50N/07201.75W_").append(text));
        EXPECT_FALSE(report.weather) << text;
    }
    EXPECT_TRUE(DecodedPosition("!4903.50N/07201.75W_PHG5130").reach);
}

TEST(Weather, CompressedCarriesTheWind)
{
    const auto report = DecodedPosition("=/5L!!<*e7_7P[g010t054");
    EXPECT_EQ(report.weather->windDirection, 88);
    EXPECT_NEAR(*report.weather->windSpeed, 41.7, 0.05);
    EXPECT_EQ(report.weather->gust, 10);
}

TEST(Weather, WithoutPosition)
{
    const auto report = Decoded<WeatherReport>("N0AAA>APRS42:_10090556c220s004g005t077r000p000P000h50b09900wXYZ");
    EXPECT_EQ(report.time.month * 1000000 + report.time.day * 10000 + report.time.hour * 100 + report.time.minute,
              10090556);
    EXPECT_EQ(report.weather.windDirection, 220);
    EXPECT_EQ(report.weather.windSpeed, 4);
    EXPECT_EQ(report.comment, "wXYZ");
    EXPECT_EQ(RefusalOf("_10090556c...s...g...t..."), Refusal::None);
    EXPECT_EQ(RefusalOf("_1009055"), Refusal::BadWeather);
    EXPECT_EQ(RefusalOf("_10090556220/004g005"), Refusal::BadWeather);
    EXPECT_EQ(RefusalOf("_"), Refusal::BadWeather);
}

TEST(Ultimeter, PacketAndLoggingForms)
{
    const auto packet =
        Decoded<WeatherReport>("N0AAA>APRS42:$ULTW0031003702CE0069274E000086A0000103E8011901CC0005000A");
    EXPECT_NEAR(*packet.weather.gust, 4.9 / 1.609344, 1e-9);
    EXPECT_EQ(packet.weather.windDirection, 78);
    EXPECT_NEAR(*packet.weather.temperature, 71.8, 1e-9);
    EXPECT_NEAR(*packet.weather.pressure, 1006.2, 1e-9);
    EXPECT_EQ(packet.weather.humidity, 100);
    EXPECT_NEAR(*packet.weather.rainMidnight, 0.05, 1e-9);
    EXPECT_NEAR(*packet.weather.windSpeed, 1.0 / 1.609344, 1e-9);
    // Below zero, and a value that is missing.
    EXPECT_NEAR(*Decoded<WeatherReport>("N0AAA>APRS42:$ULTW00000000FFEA0000----").weather.temperature, -2.2, 1e-9);

    const auto logging = Decoded<WeatherReport>("N0AAA>APRS42:!!005B008202130C5027A602D90396----013E0340000E0057");
    EXPECT_EQ(logging.weather.windDirection, 184);
    EXPECT_EQ(logging.weather.humidity, 92);
    EXPECT_NEAR(*logging.weather.windSpeed, 8.7 / 1.609344, 1e-9);
    EXPECT_FALSE(logging.weather.gust);
}

// "!!" once was read as a compressed position in the Pacific.
TEST(Ultimeter, NeverAPosition)
{
    EXPECT_EQ(RefusalOf("!!"), Refusal::BadWeather);
    EXPECT_EQ(RefusalOf("!!----"), Refusal::BadWeather);
    EXPECT_EQ(RefusalOf("!!4903.50N/07201.75W-"), Refusal::None);
    EXPECT_TRUE(std::holds_alternative<WeatherReport>(Decode("N0AAA>APRS42:!!4903.50N/07201.75W-").body));
    EXPECT_EQ(RefusalOf("$ULTW"), Refusal::BadWeather);
}

} // namespace
} // namespace ruvenmark::aprs
