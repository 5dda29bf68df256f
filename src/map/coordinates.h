#pragma once

#include "platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// How a place is written. The numbers are stored.
enum class CoordinateForm : std::uint8_t { Decimal, Minutes, Locator };
inline constexpr std::int16_t kCoordinateForms = 3;
constexpr CoordinateForm Next(CoordinateForm form)
{
    return static_cast<CoordinateForm>((static_cast<std::int16_t>(form) + 1) % kCoordinateForms);
}

// "47.12346, 8.5"; "47°07.407'N 008°30.000'E"; "JN47gc".
std::string CoordinateText(GeoPoint point, CoordinateForm form);

// The Maidenhead locator of so many characters: 2, 4, 6 or 8.
std::string LocatorOf(GeoPoint point, std::size_t characters = 6);
// The middle of the locator's square; nothing for a text that is no locator of 4, 6 or 8 characters.
std::optional<GeoPoint> ReadLocator(std::string_view text);

// Latitude and longitude as people write them: decimal degrees, or degrees, minutes and seconds, with signs or with the
// letters N, S, E and W ahead or behind, parted by a comma, a slash or blanks. Nothing for any other text.
std::optional<GeoPoint> ReadLatLon(std::string_view text);

} // namespace ruvenmark
