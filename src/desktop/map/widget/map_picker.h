#pragma once

#include "desktop/map/markers/marker_layout.h"
#include "map/selection.h"

#include <QPointF>

#include <optional>
#include <vector>

namespace ruvenmark {

class Balloons;
class MapControl;
class MapScene;

// What a click picks out.
struct Picked {
    std::optional<MapSelection> selection; // To be selected now; nothing: what was selected stays so.
    std::vector<SlotRef> heap;             // The markers that one picture stands for; else empty.
};

// What a click or a resting pointer on the map picks out.
class MapPicker {
public:
    MapPicker(MapControl& control, MapScene& scene, Balloons& balloons, const MapSelection& selection)
        : m_control(control), m_scene(scene), m_balloons(balloons), m_selection(selection)
    {
    }

    // Opens and closes the pinned balloon.
    Picked Click(QPointF at);
    // The marker or the markers there, with nothing opened or closed; none below the pinned balloon.
    std::vector<SlotRef> MarkersAt(QPointF at);
    // Whether a second quick click there is for bare ground: the first was not the pinned balloon's, which may be
    // closed since.
    bool IsGround(QPointF at);
    // Returns whether the balloon of another marker shows than before.
    bool Rest(QPointF at);

private:
    const MarkerItem* MarkerAt(QPointF at);
    const MarkerItem* UnderBadge(QPointF at) const;
    std::optional<MapSelection> ClickMarker(SlotRef ref);

    MapControl& m_control;
    MapScene& m_scene;
    Balloons& m_balloons;
    const MapSelection& m_selection;
    bool m_bOnBalloon = false; // The last click.
};

} // namespace ruvenmark
