#pragma once

#include "desktop/map/labels/station_labels.h"
#include "desktop/map/markers/marker_layout.h"
#include "desktop/map/scene/directions_line.h"
#include "desktop/map/shapes/shape_layer.h"
#include "map/selection.h"

#include <QFont>
#include <QPalette>

#include <cstdint>
#include <optional>

class QPainter;

namespace ruvenmark {

class IconSet;
class MapGround;

// How a scene is painted this time.
struct ScenePaint {
    MapSelection selection;
    QPalette palette;
    QFont font;
    QRectF buttons;                     // Lie over the map; empty: there are none.
    qreal ratio = 1;                    // Device pixels for one of the view.
    bool bVector = false;               // For a printer or a vector file: nothing as a picture that can be drawn.
    bool bWait = false;                 // The ground has to be whole: the picture is not painted again.
    std::int64_t now = 0;               // Seconds since 1970.
    std::int32_t fadeAfter = 0;         // Minutes; 0: never.
    std::optional<LineEnds> directions; // What is measured.
};

// What is seen of a map in one view: the ground, shapes, markers, names, scale bar and credits.
class MapScene {
public:
    MapScene(IconSet& icons, MapGround& ground) : m_icons(icons), m_ground(ground) {}

    // Where everything goes; for hit tests too.
    void Arrange(const Map& map, const MapView& view, const MapSelection& selection);
    // Arranges, then paints from the painter's origin on. Returns the look for what goes on top.
    MapLook Paint(QPainter& painter, const Map& map, const MapView& view, const ScenePaint& how);

    const MarkerLayout& Markers() const { return m_markers; }
    const ShapeLayout& Shapes() const { return m_shapes; }
    const StationLabels& Labels() const { return m_labels; } // As last painted.

private:
    IconSet& m_icons;
    MapGround& m_ground;
    MarkerLayout m_markers;
    ShapeLayout m_shapes;
    ShapeLayer m_shapeLayer;
    StationLabels m_labels;
    LabelGrid m_grid;
};

// The slot of the selected Pushpin or Shape; nothing where another kind, or what is gone, is selected.
template <typename Handle, typename Value>
std::optional<std::uint32_t> SelectedIn(const SlotPool<Value>& pool, const MapSelection& selection)
{
    const auto* handle = std::get_if<Handle>(&selection);
    return handle && pool.Find(handle->Ref()) ? std::optional(handle->Ref().slot) : std::nullopt;
}

} // namespace ruvenmark
