#pragma once

#include "core/channel.h"
#include "platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

struct MainWindow;

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
};

// What to offer while the operator types: the stations of all channels that have a position, other markers by name,
// then places, a typed position or locator ahead of them; of each first what begins with the text, then what holds it.
// At most `limit`. An empty text finds nothing.
std::vector<FoundPlace> Find(const MainWindow& main, const IPlaceSearch& places, std::string_view text,
                             std::size_t limit);

// Shows it on the map, near enough to be told apart, and selects its marker and its node where it has them.
void GoToFound(MainWindow& main, const FoundPlace& found);

// Commands; both bring the map to the front first.
void mnuFind_Click(MainWindow& main);
void mnuDirections_Click(MainWindow& main); // Turns the directions pane around.

} // namespace ruvenmark
