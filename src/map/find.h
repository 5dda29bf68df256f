#pragma once

#include "core/place_search.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace ruvenmark {

struct MainWindow;

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
