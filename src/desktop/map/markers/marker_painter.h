#pragma once

#include "desktop/map/markers/marker_layout.h"

#include <QColor>

#include <cstdint>
#include <optional>
#include <vector>

class QPainter;

namespace ruvenmark {

class MapAtlas;

inline constexpr int kMarkerPixels = 24; // A side of a marker's picture.

// Paints the markers' pictures in one go from the atlas of kMarkerPixels, trails as dots; the selected one is ringed.
void PaintMarkers(QPainter& painter, const std::vector<MarkerItem>& items, const MapAtlas& atlas, qreal ratio,
                  std::optional<std::uint32_t> selected, const QColor& ring);

} // namespace ruvenmark
