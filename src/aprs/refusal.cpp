#include "aprs/refusal.h"

#include <array>

namespace ruvenmark::aprs {

namespace {

constexpr std::array<std::string_view, kRefusalCount> kTexts = {
    "",
    "empty line",
    "line longer than 1024 bytes",
    "server comment, not a packet",
    "no payload",
    "bad source call",
    "bad destination",
    "bad path",
    "unknown data type",
    "position too short",
    "bad position",
    "blanks inside a position at the wrong place",
    "position out of range",
    "bad symbol table",
    "bad compressed position",
    "bad Mic-E destination",
    "bad Mic-E information",
    "bad object",
    "bad item",
    "bad message",
    "bad telemetry",
    "telemetry value out of range",
    "bad weather report",
    "weather value that no station can measure",
    "raw weather data without units",
    "bad grid locator",
    "bad NMEA sentence",
    "NMEA sentence without a position",
    "wrong NMEA checksum",
    "no GPS fix",
    "nothing inside",
    "third-party packet inside another",
};
static_assert(!kTexts.back().empty());

} // namespace

std::string_view RefusalText(Refusal refusal)
{
    return kTexts[static_cast<std::size_t>(refusal)];
}

} // namespace ruvenmark::aprs
