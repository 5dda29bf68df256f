#pragma once

#include "platform/map_model.h"

#include <cstdint>
#include <variant>

namespace ruvenmark {

struct MainWindow;

// What is selected on the map. A handle whose object is gone counts as nothing.
using MapSelection = std::variant<std::monostate, Pushpin, Shape>;

enum class SelectionKind : std::uint8_t { Nothing, Pushpin, Shape };
SelectionKind KindOfSelection(const MainWindow& main);

// Raises MapSession::SelectionChanged where the selection is another one.
void SelectOnMap(MainWindow& main, const MapSelection& selection);

} // namespace ruvenmark
