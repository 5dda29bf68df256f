#pragma once

#include "desktop/map/base_map/base_map_style.h"
#include "desktop/map/base_map/relief.h"

#include <QPainterPath>
#include <QPen>

#include <cstdint>
#include <vector>

class QPainter;

namespace ruvenmark {

// A part of the world as pixels of a painter. May reach over the date line: the world is repeated sideways.
struct BaseMapArea {
    double left = 0, top = 0;    // The corner, in units of the world.
    double worldPixels = 0;      // How wide the whole world would be, in the painter's units.
    int width = 0, height = 0;   // Of the area, in the painter's units.
    double devicePixelRatio = 1; // Device pixels for one unit: decides how much detail is worth painting.
};

// Paints the ground without any names, as vectors (Terrain: over a picture), from the painter's origin on. Const and
// safe to use from many threads, each with its own painter.
class BaseMapPainter {
public:
    explicit BaseMapPainter(const BaseMap& map) : m_map(map), m_relief(map) {} // The map must outlive this.

    void Paint(QPainter& painter, const BaseMapArea& area, MapStyle style, bool bDark) const;

private:
    struct Canvas;
    struct Line { // Features with one of these attributes (a bit each) and how they are drawn.
        std::uint32_t wanted = 0;
        QPen pen;
    };

    template <typename Add>
    void Each(const Canvas& canvas, BaseMapLayer layer, double margin, Add add) const;
    // The areas of a layer as one path for each of `wanted`.
    std::vector<QPainterPath> Fill(const Canvas& canvas, BaseMapLayer layer,
                                   const std::vector<std::uint32_t>& wanted) const;
    // Features as lines, without the edges that come from cutting; the first lines lie below.
    void Stroke(Canvas& canvas, BaseMapLayer layer, const std::vector<Line>& lines) const;

    void PaintPart(Canvas& canvas, MapStyle style) const;
    void PaintGround(Canvas& canvas, MapStyle style) const;
    void PaintCountries(Canvas& canvas, const QPainterPath& land) const;
    bool PaintRelief(Canvas& canvas, const QPainterPath& land, const QPainterPath& inlets) const;
    void PaintRivers(Canvas& canvas) const;
    void PaintBorders(Canvas& canvas) const;

    const BaseMap& m_map;
    Relief m_relief;
};

} // namespace ruvenmark
