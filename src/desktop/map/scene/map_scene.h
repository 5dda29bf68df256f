#pragma once

#include "desktop/map/labels/station_labels.h"
#include "desktop/map/markers/marker_layout.h"
#include "desktop/map/scene/directions_line.h"
#include "desktop/map/scene/map_ground.h"
#include "desktop/map/scene/scene_marks.h"
#include "desktop/map/shapes/shape_layer.h"
#include "map/selection.h"

#include <QFont>
#include <QPalette>

#include <cstdint>
#include <optional>

class QPainter;

namespace ruvenmark {

class IconSet;

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

    friend bool operator==(const ScenePaint&, const ScenePaint&) = default;
};

// What is seen of a map in one view: the ground, shapes, markers, names, scale bar and credits.
class MapScene {
public:
    MapScene(IconSet& icons, MapGround& ground) : m_icons(icons), m_ground(ground) {}

    // Where everything goes; for hit tests too.
    void Arrange(const Map& map, const MapView& view, const MapSelection& selection);
    // Arranges all that is painted. Returns where it differs from what was laid before; nothing: anywhere.
    std::optional<QRegion> Lay(const Map& map, const MapView& view, const ScenePaint& how);
    // Paints what was laid, from the painter's origin on; what a region touches where one is given. The map is still
    // as it was. Returns the look for what goes on top.
    MapLook Draw(QPainter& painter, const Map& map, const MapView& view, const ScenePaint& how,
                 const QRegion* only = nullptr);

    const MarkerLayout& Markers() const { return m_markers; }
    const ShapeLayout& Shapes() const { return m_shapes; }
    const ShapeLayer& KeptShapes() const { return m_shapeLayer; }
    void Forget() { m_shapeLayer.Forget(); }                 // Another map comes.
    const StationLabels& Labels() const { return m_labels; } // As last painted.

private:
    // What concerns the whole picture.
    struct Whole {
        ScenePaint how; // Without its time: what that changes is seen on the markers.
        GeoPoint centre;
        double zoom = 0;
        int width = 0, height = 0;
        std::int32_t style = 0, font = 0;
        QString credits;

        friend bool operator==(const Whole&, const Whole&) = default;
    };

    MapLook LookOf(const Map& map, const ScenePaint& how) const;
    MapGround::How GroundOf(const Map& map, const ScenePaint& how, const QRegion* only) const;
    void LayLabels(const Map& map, const MapView& view, const ScenePaint& how);
    void DrawMarkers(QPainter& painter, const ScenePaint& how, const QRegion* only,
                     std::optional<std::uint32_t> selected, const QColor& ring);
    SceneMarks MarksOf() const;
    std::size_t ShapesNumber(const Map& map) const;

    IconSet& m_icons;
    MapGround& m_ground;
    MarkerLayout m_markers;
    ShapeLayout m_shapes;
    ShapeLayer m_shapeLayer;
    StationLabels m_labels;
    LabelGrid m_grid;
    Whole m_whole;
    std::optional<SceneMarks> m_marks; // Nothing after a change of the whole.
    std::size_t m_shapesNumber = 0;    // Another one where other shapes are seen.
};

// The slot of the selected Pushpin or Shape; nothing where another kind, or what is gone, is selected.
template <typename Handle, typename Value>
std::optional<std::uint32_t> SelectedIn(const SlotPool<Value>& pool, const MapSelection& selection)
{
    const auto* handle = std::get_if<Handle>(&selection);
    return handle && pool.Find(handle->Ref()) ? std::optional(handle->Ref().slot) : std::nullopt;
}

} // namespace ruvenmark
