#include "decoded.h"

namespace ruvenmark::aprs {
namespace {

TEST(Status, TimeAndLocator)
{
    const auto timed = Decoded<StatusReport>("N0AAA>APRS42:>092345zNet control");
    EXPECT_EQ(timed.text, "Net control");
    EXPECT_EQ(timed.time.day, 9);
    EXPECT_EQ(Decoded<StatusReport>("N0AAA>APRS42:>092345hNet").text, "092345hNet"); // Only UTC days stand here.

    const auto grid = Decoded<StatusReport>("N0AAA>APRS42:>IO91SX/- My house");
    ASSERT_TRUE(grid.grid);
    EXPECT_EQ(grid.grid->locator, "IO91SX");
    EXPECT_NEAR(grid.grid->latitude, 51.979167, 1e-5);
    EXPECT_NEAR(grid.grid->longitude, -0.458333, 1e-5);
    EXPECT_EQ(grid.text, "IO91SX/- My house");
    EXPECT_EQ(Decoded<StatusReport>("N0AAA>APRS42:>IO91/G").grid->locator, "IO91");
    // Words and model numbers that begin like a locator.
    for (const std::string_view text : {"IO91", "IO91 home", "AB12CD", "FM18 and up", "RR99ZZ/- x"}) {
        const std::string line = std::string("N0AAA>APRS42:>").append(text);
        EXPECT_FALSE(Decoded<StatusReport>(line).grid) << text;
    }
    EXPECT_EQ(Decoded<StatusReport>("N0AAA>APRS42:>").text, "");
}

TEST(GridBeacon, LocatorInBrackets)
{
    const auto beacon = Decoded<GridBeacon>("N0AAA>APRS42:[JO21nr]Node");
    EXPECT_EQ(beacon.grid.locator, "JO21nr");
    EXPECT_EQ(beacon.comment, "Node");
    EXPECT_EQ(Decoded<GridBeacon>("N0AAA>APRS42:[JO21]").grid.latitude, 51.5);
    EXPECT_EQ(RefusalOf("[JO21nr"), Refusal::BadGrid);
    EXPECT_EQ(RefusalOf("[ Net ]"), Refusal::BadGrid);
    EXPECT_EQ(RefusalOf("[JO2]"), Refusal::BadGrid);
}

struct TelemetryCase {
    std::string_view text;
    std::array<std::optional<double>, 5> values;
    std::string_view bits;
};

// Senders leave values out, use decimals and write too few bits; what is missing must not become zero.
TEST(Telemetry, ValuesAsSent)
{
    constexpr auto kNot = std::nullopt;
    const TelemetryCase cases[] = {
        {"T#005,199,000,255,073,123,01101001", {199, 0, 255, 73, 123}, "01101001"},
        {"T#324,16.9,-2.5,.12,50.,0,0110", {16.9, -2.5, 0.12, 50, 0}, "0110"},
        {"T#005,,1,,,", {kNot, 1, kNot, kNot, kNot}, ""},
        {"T#1,1,f,3", {1, kNot, kNot, kNot, kNot}, ""},
        {"T#12345,1,2,3,4,5", {1, 2, 3, 4, 5}, ""},
        {"T#MIC,199,000,255,073,123,01101001", {199, 0, 255, 73, 123}, "01101001"},
        {"T#MIC199,000,255,073,123,01101001", {199, 0, 255, 73, 123}, "01101001"},
    };
    for (const TelemetryCase& test : cases) {
        const std::string line = std::string("N0AAA>APRS42:").append(test.text);
        const auto telemetry = Decoded<Telemetry>(line);
        EXPECT_EQ(telemetry.values, test.values) << test.text;
        EXPECT_EQ(telemetry.bits, test.bits) << test.text;
    }
    EXPECT_EQ(Decoded<Telemetry>("N0AAA>APRS42:T#1,1,2,3,4,5,00000000 hut").comment, "hut");
    EXPECT_EQ(RefusalOf("T#"), Refusal::BadTelemetry);
    EXPECT_EQ(RefusalOf("T#5"), Refusal::BadTelemetry);
    EXPECT_EQ(RefusalOf("T#5,ABC,1"), Refusal::BadTelemetry);
    EXPECT_EQ(RefusalOf("T#5,1,2147483649"), Refusal::TelemetryOutOfRange);
    EXPECT_EQ(RefusalOf("Terry in the valley"), Refusal::UnknownType);
}

TEST(ShortKinds, TextsAndEmptiness)
{
    EXPECT_EQ(Decoded<Capabilities>("N0AAA>APRS42:<IGATE,MSG_CNT=30 ").text, "IGATE,MSG_CNT=30");
    EXPECT_EQ(Decoded<Query>("N0AAA>APRS42:?APRS?").text, "APRS?");
    EXPECT_EQ(Decoded<TestData>("N0AAA>APRS42:,test").text, "test");
    const auto user = Decoded<UserDefined>("N0AAA>APRS42:{Qxdata");
    EXPECT_EQ(user.id, "Qx");
    EXPECT_EQ(user.data, "data");
    for (const std::string_view info : {"<", "? ", ",", "{", "{Q"})
        EXPECT_EQ(RefusalOf(info), Refusal::NothingInside) << info;
    EXPECT_EQ(RefusalOf("#50B7500820082"), Refusal::RawWeather);
    EXPECT_EQ(RefusalOf("*7007600000000"), Refusal::RawWeather);
}

// The gate that relays a packet must never appear at the place of the station it relays.
TEST(ThirdParty, TheInnerPacketCounts)
{
    const Packet packet = Decode("N0GATE>APRS42,WIDE1-1:}N0BBB-7>APRS43,TCPIP,N0GATE*:!4903.50N/07201.75W-");
    ASSERT_TRUE(packet.relay);
    EXPECT_EQ(packet.relay->source, "N0GATE");
    EXPECT_EQ(packet.header.source, "N0BBB-7");
    EXPECT_EQ(packet.header.dest, "APRS43");
    EXPECT_EQ(packet.header.path, "TCPIP,N0GATE*");
    EXPECT_EQ(packet.info.front(), '!');
    EXPECT_TRUE(std::holds_alternative<PositionReport>(packet.body));

    EXPECT_EQ(Decode("N0GATE>APRS42:}text !4903.50N/07201.75W-").refusal, Refusal::NoPayload);
    EXPECT_EQ(Decode("N0GATE>APRS42:}te:xt !4903.50N/07201.75W-").refusal, Refusal::BadSource);
    EXPECT_EQ(Decode("N0GATE>APRS42:}").refusal, Refusal::NoPayload);
    EXPECT_EQ(Decode("N0GATE>APRS42:}N0A>APRS:}N0B>APRS:>deep").refusal, Refusal::NestedThirdParty);
}

} // namespace
} // namespace ruvenmark::aprs
