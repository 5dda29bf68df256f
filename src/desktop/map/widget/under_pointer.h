#pragma once

#include "desktop/map/markers/marker_layout.h"
#include "desktop/map/shapes/shape_layout.h"

#include <QPointF>

#include <cstdint>
#include <optional>

namespace ruvenmark {

// The marker under a point of the window: the topmost one whose picture holds it, else the nearest within reach.
const MarkerItem* MarkerUnder(const MarkerLayout& layout, QPointF at);

// The slot of the line under a point, or else of the circle whose outline passes there.
std::optional<std::uint32_t> ShapeUnder(const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, QPointF at);

} // namespace ruvenmark
