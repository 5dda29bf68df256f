#pragma once

#include "platform/map_model.h"

#include <vector>

namespace ruvenmark {

// All lines and circles of a map, in the order of their slots.
inline std::vector<ShapeData> ShapesOf(const Map& map)
{
    std::vector<ShapeData> found;
    const auto& shapes = map.Shapes();
    for (std::size_t slot = 0; slot < shapes.SlotCount(); ++slot)
        if (shapes.At(slot))
            found.push_back(*shapes.At(slot));
    return found;
}

} // namespace ruvenmark
