#pragma once

#include "platform/map_model.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

// A map as a file holds it.
struct MapDocument {
    std::optional<std::int32_t> region; // None in a file of another program.
    std::int32_t style = kFirstMapStyle;
    std::int32_t font = kFirstMapFont;
    std::optional<GeoPoint> centre; // The same.
    double zoom = kFirstZoom;
    std::vector<PinData> pins; // Oldest first.
    std::vector<ShapeData> shapes;
};

// A `.ptm` file is GeoJSON (RFC 7946): a FeatureCollection whose Point features are pins, LineString features lines and
// Point features with a "radiusMiles" property circles; what GeoJSON has no place for stands in a foreign member.
std::string WriteMapDocument(const MapDocument& document);

// Raises Failure for a text that is no such document: no half of one is ever returned.
MapDocument ReadMapDocument(std::string_view text);

} // namespace ruvenmark
