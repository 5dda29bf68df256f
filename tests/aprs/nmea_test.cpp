#include "aprs/destination_symbol.h"
#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

TEST(Nmea, SentencesWithAPosition)
{
    const auto rmc = DecodedPosition("$GPRMC,145526,A,3349.0378,N,08406.2617,W,23.726,27.9,121207,4.9,W*7A", "GPSMV");
    EXPECT_NEAR(rmc.position.latitude, 33.817297, 1e-5);
    EXPECT_NEAR(rmc.position.longitude, -84.104362, 1e-5);
    EXPECT_DOUBLE_EQ(*rmc.speed, 23.726);
    EXPECT_DOUBLE_EQ(*rmc.course, 27.9);
    EXPECT_EQ(rmc.position.symbol.code, '>');

    const auto gga = DecodedPosition("$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,47.0,M,,*4F tail");
    EXPECT_NEAR(*gga.altitude, 1789.37, 0.01);
    EXPECT_NEAR(gga.position.longitude, 11.516667, 1e-5);
    EXPECT_NEAR(DecodedPosition("$GNGLL,4916.45,N,12311.12,W,225444,A").position.latitude, 49.274167, 1e-5);
}

TEST(Nmea, Faults)
{
    EXPECT_EQ(RefusalOf("$GPRMC,145526,A,3349.0378,N,08406.2617,W,23.726,27.9,121207,4.9,W*7B"), Refusal::NmeaChecksum);
    EXPECT_EQ(RefusalOf("$GPRMC,145526,V,3349.0378,N,08406.2617,W,23.726,27.9,121207"), Refusal::NmeaNoFix);
    EXPECT_EQ(RefusalOf("$GPGGA,123519,4807.038,N,01131.000,E,0,08,0.9,545.4,M"), Refusal::NmeaNoFix);
    EXPECT_EQ(RefusalOf("$GPGLL,4916.45,N,12311.12,W,225444,V"), Refusal::NmeaNoFix);
    EXPECT_EQ(RefusalOf("$GPRMC"), Refusal::BadNmea);
    EXPECT_EQ(RefusalOf("$GPGLL,484768272,N,00829.8212,E"), Refusal::BadNmea);
    EXPECT_EQ(RefusalOf("$GPGLL,4961.00,N,00829.8212,E"), Refusal::BadNmea);
    EXPECT_EQ(RefusalOf("$GPGLL,9001.00,N,00829.8212,E"), Refusal::BadNmea);
    EXPECT_EQ(RefusalOf("$GPGSV,3,1,11"), Refusal::NmeaUnsupported);
    EXPECT_EQ(RefusalOf("$PXYZ,1"), Refusal::NmeaUnsupported);
    EXPECT_EQ(RefusalOf("$"), Refusal::NmeaUnsupported);
}

TEST(DestinationSymbol, LettersNumbersAndSsids)
{
    struct Case {
        std::string_view dest;
        char table, code;
    };
    const Case cases[] = {
        {"GPSMV", '/', '>'},   {"GPSNV", '\\', '>'},  {"GPSNVX", 'X', '>'}, {"SPCBN", '/', '-'},
        {"GPSLK-3", '/', 'k'}, {"GPSP5", '/', '5'},   {"GPSA5", '\\', '5'}, {"GPSPA", '/', 'A'},
        {"GPSC30", '/', '>'},  {"GPSE30", '\\', '>'}, {"GPSHW", '/', '_'},  {"GPSJ4", '/', '~'},
    };
    for (const Case& test : cases) {
        const auto symbol = DestinationSymbol(test.dest);
        ASSERT_TRUE(symbol) << test.dest;
        EXPECT_EQ(symbol->table, test.table) << test.dest;
        EXPECT_EQ(symbol->code, test.code) << test.dest;
    }
    for (const std::string_view dest : {"APRS42", "GPS", "GPSX", "GPSZZ", "GPSC00", "GPSC95"})
        EXPECT_FALSE(DestinationSymbol(dest)) << dest;
    EXPECT_EQ(SsidSymbol("N0AAA-9")->code, '>');
    EXPECT_EQ(SsidSymbol("N0AAA-15")->code, 'v');
    EXPECT_FALSE(SsidSymbol("N0AAA"));
    EXPECT_FALSE(SsidSymbol("N0AAA-16"));
    EXPECT_FALSE(SsidSymbol("N0AAA-D"));
}

} // namespace
} // namespace ruvenmark::aprs
