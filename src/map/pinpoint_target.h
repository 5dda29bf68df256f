#pragma once

#include "core/forms.h"
#include "platform/geometry.h"

#include <optional>

namespace ruvenmark {

struct MainWindow;

// Who waits for a click on the map, and what the click gives it.
struct PinPointTarget {
    bool (*isVisible)(const MainWindow& main);      // Else the click is used up for nothing.
    void (*take)(MainWindow& main, GeoPoint point); // At most 5 decimals.
    std::optional<Form> form;                       // Stands aside meanwhile.
};

} // namespace ruvenmark
