#pragma once

#include "platform/event.h"
#include "platform/map_model.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

namespace ruvenmark {

class IFiles;
struct MapDocument;

inline constexpr std::int32_t kPointerDefault = 0;
inline constexpr std::int32_t kPointerCross = 2; // A click on the map is waited for.
inline constexpr std::int32_t kPointerWait = 11;

// Put a copy of what a document holds on the map. Raise Failure for a place that is not on the earth.
Pushpin AddPin(Map& map, const PinData& pin);
Shape AddShape(Map& map, const ShapeData& shape);

// The map on the main window. It outlives every handle of its map.
class MapControl {
public:
    explicit MapControl(IFiles& files) : m_files(files) {}

    // Of all maps from now on.
    void SetNoteMaker(std::unique_ptr<INoteMaker> maker);

    // Null until a map was made.
    Map* ActiveMap() const { return m_map.get(); }
    // The active map; raises Failure where there is none.
    Map& RequireMap() const;

    void NewMap(std::int32_t region);    // Raises Failure for an unknown region.
    void OpenMap(std::string_view path); // On Failure the map is as it was.
    void SaveMapAs(std::string_view path);
    // A document with the region, style, font and view of the map, and nothing on it. Raises Failure without a map.
    MapDocument EmptyDocument() const;

    // Tool bars 1 to 4; any other index raises Failure.
    bool ToolbarVisible(std::int32_t index) const;
    void SetToolbarVisible(std::int32_t index, bool bVisible);

    std::int32_t Units() const { return kUnitsMiles; }
    std::int32_t MapRegion() const { return m_region; }
    bool ItineraryVisible() const { return m_bItineraryVisible; }
    void SetItineraryVisible(bool bVisible);
    std::int32_t MousePointer() const { return m_mousePointer; }
    void SetMousePointer(std::int32_t pointer);

    Event<> Replaced;       // Another map: handles of the former one are dead.
    Event<> ControlChanged; // Tool bars, directions pane, pointer.

private:
    Map& StartMap(std::int32_t region);

    IFiles& m_files;
    std::unique_ptr<INoteMaker> m_noteMaker;
    std::unique_ptr<Map> m_map;
    std::array<bool, 4> m_toolbars{};
    std::int32_t m_region = 0;
    std::int32_t m_mousePointer = kPointerDefault;
    bool m_bItineraryVisible = false;
};

} // namespace ruvenmark
