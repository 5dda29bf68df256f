#pragma once

#include "core/channel.h"
#include "platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

struct FoundPlace {
    enum class Kind : std::uint8_t { Station, Marker, Place };
    Kind kind = Kind::Place;
    std::string name;   // A station's or marker's name on the map, or the place's.
    std::string detail; // Channel word, or state and country.
    GeoPoint point;
    std::string call;              // Of a station.
    Channel channel = Channel::RF; // Of a station.
};

// The places of the base map.
class IPlaceSearch {
public:
    virtual ~IPlaceSearch() = default;
    // Best first; at most `limit`. Letters' case is ignored.
    virtual std::vector<FoundPlace> Search(std::string_view text, std::size_t limit) const = 0;
    // The largest that is called exactly so, in whatever language. Letters' case is ignored.
    virtual std::optional<FoundPlace> Named(std::string_view name) const = 0;
};

} // namespace ruvenmark
