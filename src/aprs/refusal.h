#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ruvenmark::aprs {

// Why a line is no report we can read. The order is that of the tests along a line.
enum class Refusal : std::uint8_t {
    None,
    EmptyLine,
    LineTooLong,
    ServerComment,
    NoPayload,
    BadSource,
    BadDestination,
    BadPath,
    UnknownType,
    PositionTooShort,
    BadPosition,
    BlanksMisplaced,
    PositionOutOfRange,
    BadSymbolTable,
    BadCompressed,
    BadMicEDestination,
    BadMicE,
    BadObject,
    BadItem,
    BadMessage,
    BadTelemetry,
    TelemetryOutOfRange,
    BadWeather,
    WeatherOutOfRange,
    RawWeather,
    BadGrid,
    BadNmea,
    NmeaUnsupported,
    NmeaChecksum,
    NmeaNoFix,
    NothingInside,
    NestedThirdParty,
};
inline constexpr std::size_t kRefusalCount = static_cast<std::size_t>(Refusal::NestedThirdParty) + 1;

// Plain words for people, the same text for the same reason always; empty for None.
std::string_view RefusalText(Refusal refusal);

} // namespace ruvenmark::aprs
