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
        const auto read = [&](double near, const std::string& info, std::string_view dest = "APRS42") {
            const PositionReport report = DecodedPosition(info, dest);
            EXPECT_NEAR(report.position.latitude, place.lat, near) << info;
            EXPECT_NEAR(report.position.longitude, place.lon, near) << info;
            return report;
        };
        read(kHundredthMinute, '!' + text::PlainPosition(place, "/>"));
        read(1e-5, '!' + text::PlainPosition(place, "/>") + text::Dao(place));
        const auto compressed = read(1e-5, '!' + text::CompressedPosition(place, "9#", {88, 36}));
        EXPECT_EQ(compressed.course, 88);
        EXPECT_NEAR(*compressed.speed, 36, 1.5);
        const auto micE = read(kHundredthMinute, '`' + text::MicEBody(place, "/k", {251, 65}) + text::MicEAltitude(-5),
                               text::MicEDestination(place, 2));
        EXPECT_EQ(micE.course, 251);
        EXPECT_EQ(micE.speed, 65);
        EXPECT_NEAR(*micE.altitude * 0.3048, -5, 1e-6);
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
    EXPECT_EQ(packet.header.path, "N0DIG*,WIDE2-1,qAR,N0GATE");
    EXPECT_EQ(packet.info, ">a:b>c,d");
    EXPECT_EQ(packet.line.back(), 'd');
}

TEST(Header, LinesThatAreNoPackets)
{
    const std::string longest = "N0AAA>APRS42:>" + std::string(kMaxLine - 14, 'x');
    const std::pair<std::string, Refusal> kLines[] = {{"", Refusal::EmptyLine},
                                                      {"\r\n", Refusal::EmptyLine},
                                                      {"# server 1.0 ready", Refusal::ServerComment},
                                                      {"N0AAA>APRS42", Refusal::NoPayload},
                                                      {"N0AAA>APRS42:", Refusal::NoPayload},
                                                      {longest, Refusal::None},
                                                      {longest + 'x', Refusal::LineTooLong}};
    for (const auto& [line, refusal] : kLines)
        EXPECT_EQ(Decode(line).refusal, refusal) << line.substr(0, 30);
}

} // namespace
} // namespace ruvenmark::aprs
