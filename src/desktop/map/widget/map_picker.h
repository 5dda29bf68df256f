#pragma once

#include "desktop/map/markers/marker_layout.h"
#include "map/selection.h"

#include <QPointF>

#include <optional>

namespace ruvenmark {

class Balloons;
class MapControl;
class MapScene;

// What a click or a resting pointer on the map picks out.
class MapPicker {
public:
    MapPicker(MapControl& control, MapScene& scene, Balloons& balloons, const MapSelection& selection)
        : m_control(control), m_scene(scene), m_balloons(balloons), m_selection(selection)
    {
    }

    // Opens and closes the pinned balloon. Returns what is to be selected now; nothing: what was selected stays so.
    std::optional<MapSelection> Click(QPointF at);
    // Returns whether the balloon of another marker shows than before.
    bool Rest(QPointF at);

private:
    const MarkerItem* MarkerAt(QPointF at);
    std::optional<MapSelection> ClickMarker(const MarkerItem& item);

    MapControl& m_control;
    MapScene& m_scene;
    Balloons& m_balloons;
    const MapSelection& m_selection;
};

} // namespace ruvenmark
