#pragma once

#include "platform/map_model.h"

#include <cstdint>
#include <variant>

namespace ruvenmark {

struct MainWindow;

// A handle whose object is gone counts as nothing.
using MapSelection = std::variant<std::monostate, Pushpin, Shape>;

// What commands on the selection act on: nothing while another page hides the map.
enum class SelectionKind : std::uint8_t { Nothing, Pushpin, Shape };
SelectionKind KindOfSelection(const MainWindow& main);

// Raises MapSession::SelectionChanged where the selection is another one.
void SelectOnMap(MainWindow& main, const MapSelection& selection);

} // namespace ruvenmark
