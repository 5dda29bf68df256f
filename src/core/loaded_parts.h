#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>

namespace ruvenmark {

// What outlasts a run. A part that was never loaded is never saved, so that a start that ended early costs nothing.
enum class Part : std::uint8_t {
    Geometry,
    Region,
    Settings,
    Follow, // Whether the map follows tracked stations.
    ServerLists,
    Filters,
    Comm, // commDialog.
    Gps,
    UnknownFolders,
    TrackLists,
    MessageBoxes,
    FileLoad,
    MapLook, // How the map tells places and ages.
    Tiles,
    View // What the window shows around the map, and how the map looks.
};

class LoadedParts {
public:
    bool Has(Part part) const { return m_parts[static_cast<std::size_t>(part)]; }
    void Add(Part part) { m_parts.set(static_cast<std::size_t>(part)); }

private:
    std::bitset<static_cast<std::size_t>(Part::View) + 1> m_parts;
};

} // namespace ruvenmark
