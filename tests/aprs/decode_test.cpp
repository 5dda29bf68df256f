#include "aprs/decode.h"
#include "packet_mix.h"
#include "packet_text.h"

#include <gtest/gtest.h>

#include <memory>

namespace ruvenmark::aprs {
namespace {

namespace text = packet_text;

constexpr double kHundredthMinute = 1.0 / 6000 + 1e-9;

const text::Place kPlaces[] = {{49.05833, -72.02917}, {-33.9, 151.2}, {0.0, 0.0},      {-0.5, 0.5},    {89.9, 179.9},
                               {-89.9, -179.9},       {51.5, -9.99},  {51.5, 9.99},    {10.0, 100.5},  {10.0, -109.9},
                               {10.0, 110.1},         {60.16, 24.99}, {37.7, -122.41}, {-54.8, -68.3}, {1.0, 99.999}};

PositionReport DecodedPosition(std::string_view info, std::string_view dest = "APRS42")
{
    const std::string line = std::string("N0AAA>").append(dest).append(":").append(info);
    const Packet packet = Decode(line);
    const auto* const report = std::get_if<PositionReport>(&packet.body);
    EXPECT_NE(report, nullptr) << line << ": " << RefusalText(packet.refusal);
    return report != nullptr ? *report : PositionReport(); // Its texts are gone with the line.
}

// The writer and the reader of each form agree on every side of its seams.
TEST(RoundTrip, AllFormsOfAPosition)
{
    for (const text::Place& place : kPlaces) {
        const auto plain = DecodedPosition('!' + text::PlainPosition(place, "/>"));
        EXPECT_NEAR(plain.position.latitude, place.lat, kHundredthMinute);
        EXPECT_NEAR(plain.position.longitude, place.lon, kHundredthMinute);

        const auto compressed = DecodedPosition('!' + text::CompressedPosition(place, "9#", {88, 36}));
        EXPECT_NEAR(compressed.position.latitude, place.lat, 1e-5);
        EXPECT_NEAR(compressed.position.longitude, place.lon, 1e-5);
        EXPECT_EQ(compressed.position.symbol.table, '9');
        EXPECT_EQ(compressed.course, 88);
        EXPECT_NEAR(*compressed.speed, 36, 1.5);

        const auto micE = DecodedPosition('`' + text::MicEBody(place, "/k", {251, 65}) + text::MicEAltitude(-5),
                                          text::MicEDestination(place, 2));
        EXPECT_NEAR(micE.position.latitude, place.lat, kHundredthMinute) << place.lat << ' ' << place.lon;
        EXPECT_NEAR(micE.position.longitude, place.lon, kHundredthMinute) << place.lat << ' ' << place.lon;
        EXPECT_EQ(micE.course, 251);
        EXPECT_EQ(micE.speed, 65);
        EXPECT_NEAR(*micE.altitude * 0.3048, -5, 1e-6);
        EXPECT_EQ(micE.micEStatus, "In Service");

        const auto fine = DecodedPosition('!' + text::PlainPosition(place, "/>") + text::Dao(place));
        EXPECT_NEAR(fine.position.latitude, place.lat, 1e-5);
        EXPECT_NEAR(fine.position.longitude, place.lon, 1e-5);
    }
}

// In a block of exactly the line's size, so that a sanitizer sees any look behind its end.
Refusal DecodeExactly(std::string_view line)
{
    const auto block = std::make_unique<char[]>(line.size());
    std::copy(line.begin(), line.end(), block.get());
    return Decode({block.get(), line.size()}).refusal;
}

TEST(CutLines, EveryLengthOfEveryKindIsRead)
{
    for (const std::string& line : MakePacketMix(400, 7)) {
        for (std::size_t size = 0; size < line.size(); ++size) {
            DecodeExactly(std::string_view(line).substr(0, size));
            // The payload cut at its front: the same bytes at places where others are expected.
            DecodeExactly("N0AAA>APRS42:" + line.substr(size));
        }
        EXPECT_NE(DecodeExactly(line), Refusal::NoPayload) << line;
    }
}

TEST(Header, SplitsAtTheFirstColonAndKeepsThePathAsWritten)
{
    const Packet packet = Decode("N0AAA-9>APRS42,N0DIG*,WIDE2-1,qAR,N0GATE:>a:b>c,d\r\n");
    EXPECT_EQ(packet.header.source, "N0AAA-9");
    EXPECT_EQ(packet.header.dest, "APRS42");
    EXPECT_EQ(packet.header.path, "N0DIG*,WIDE2-1,qAR,N0GATE");
    EXPECT_EQ(packet.info, ">a:b>c,d");
    EXPECT_EQ(packet.line.back(), 'd');
}

TEST(Header, LinesThatAreNoPackets)
{
    EXPECT_EQ(Decode("").refusal, Refusal::EmptyLine);
    EXPECT_EQ(Decode("\r\n").refusal, Refusal::EmptyLine);
    EXPECT_EQ(Decode("# server 1.0 ready").refusal, Refusal::ServerComment);
    EXPECT_EQ(Decode("N0AAA>APRS42").refusal, Refusal::NoPayload);
    EXPECT_EQ(Decode("N0AAA>APRS42:").refusal, Refusal::NoPayload);
    std::string line = "N0AAA>APRS42:>";
    line.resize(kMaxLine, 'x');
    EXPECT_EQ(Decode(line).refusal, Refusal::None);
    EXPECT_EQ(Decode(line + 'x').refusal, Refusal::LineTooLong);
}

} // namespace
} // namespace ruvenmark::aprs
