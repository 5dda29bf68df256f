#include "decoded.h"
#include "packet_mix.h"
#include "packet_text.h"

namespace ruvenmark::aprs {
namespace {

namespace text = packet_text;

constexpr double kHundredthMinute = 1.0 / 6000 + 1e-9;

const text::Place kPlaces[] = {{49.05833, -72.02917}, {-33.9, 151.2}, {0.0, 0.0},      {-0.5, 0.5},    {89.9, 179.9},
                               {-89.9, -179.9},       {51.5, -9.99},  {51.5, 9.99},    {10.0, 100.5},  {10.0, -109.9},
                               {10.0, 110.1},         {60.16, 24.99}, {37.7, -122.41}, {-54.8, -68.3}, {1.0, 99.999}};

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

// The mix is what is measured: nearly all of it must be readable, or speed means nothing.
TEST(RoundTrip, TheMixIsReadable)
{
    const auto lines = MakePacketMix(5000);
    std::size_t decoded = 0;
    std::size_t positions = 0;
    for (const std::string& line : lines) {
        const Packet packet = Decode(line);
        decoded += packet.IsDecoded() ? 1U : 0U;
        positions += std::holds_alternative<PositionReport>(packet.body) ? 1U : 0U;
    }
    EXPECT_GT(decoded, lines.size() * 96 / 100);
    EXPECT_LT(decoded, lines.size());
    EXPECT_GT(positions, lines.size() / 2);
    EXPECT_EQ(MakePacketMix(50), MakePacketMix(50));
}

} // namespace
} // namespace ruvenmark::aprs
