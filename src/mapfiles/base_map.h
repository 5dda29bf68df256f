#pragma once

#include "mapfiles/vector_layer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

enum class BaseMapLayer : std::uint32_t {
    Land = 1,     // Rings; attribute 1 land, 2 lake, 3 island in a lake, 4 pond. Fill by the odd-even rule.
    Rivers,       // Lines; attribute 0 river-lake, 1 to 4 by size, 5 seasonal, 8 canal.
    Borders,      // Lines; attribute 0 national, 1 state of a big country, 2 other province, 3 disputed.
    CountryAreas, // Rings; attribute: the colour number, below kPoliticalColors.
    Inlets,       // Rings: water over the land.
};
inline constexpr int kPoliticalColors = 7;

// A country, a state or a piece of water: what is written over an area.
struct AreaLabel {
    double x = 0, y = 0;   // Where the name goes, in the world.
    double width = 0;      // Of the largest part, as a share of the world's width; 0 for water.
    double area = 0;       // The same, as a share of the world's square.
    std::string_view name; // UTF-8; empty: nothing to write.
    std::optional<std::size_t> country;
    int rank = 0; // Water: 0 ocean to 3 bay or lake. Country: its colour number.
};

struct PlaceRecord {
    double x = 0, y = 0;
    std::uint32_t population = 0;
    std::string_view name;
    std::optional<std::size_t> state, country;
    bool bCapital = false, bPartOfCity = false;
};

// The built-in map: one prepared file, mapped into memory and read in place. Const and safe to read from many threads.
class BaseMap {
public:
    // Raises Failure when the file is missing or damaged.
    static BaseMap Open(const std::string& path);
    // Over bytes that outlive the map, eight-byte aligned. Raises Failure.
    explicit BaseMap(std::span<const std::byte> bytes);

    // The coarsest level that is fine enough at this zoom (the world is 256 * 2^zoom device pixels wide).
    const VectorLayer& Layer(BaseMapLayer layer, double zoom) const;

    std::size_t CountryCount() const { return m_countries.size() / kAreaBytes; }
    std::size_t StateCount() const { return m_states.size() / kAreaBytes; }
    std::size_t WaterCount() const { return m_waters.size() / kAreaBytes; }
    AreaLabel Country(std::size_t index) const { return AreaAt(m_countries, index); }
    AreaLabel State(std::size_t index) const { return AreaAt(m_states, index); }
    AreaLabel Water(std::size_t index) const { return AreaAt(m_waters, index); }

    // Places are numbered by population, the largest first.
    std::size_t PlaceCount() const { return m_places.count; }
    PlaceRecord Place(std::size_t index) const;
    // Lower case without marks; see FoldForSearch. A name that folds to plain lower case is given as it is written.
    std::string_view FoldedName(std::size_t index) const;
    // Place numbers in the order of their folded names.
    std::span<const std::uint32_t> NameOrder() const { return m_nameOrder; }
    // The places of one cell of a square grid over the world, ascending.
    std::span<const std::uint32_t> PlacesInCell(std::uint32_t column, std::uint32_t row) const;
    std::uint32_t CellsPerSide() const { return 1U << m_cellBits; }

    // Grey height tiles: one JPEG of 512 x 512 pixels; level 1 is one tile, each further level has twice as many a
    // side.
    std::span<const std::byte> HeightTile(std::uint32_t level, std::uint32_t column, std::uint32_t row) const;
    static constexpr std::uint32_t kHeightLevels = 5;

private:
    static constexpr std::size_t kAreaBytes = 28;
    struct PlaceColumns {
        std::size_t count = 0;
        std::span<const std::uint32_t> x, y, population, name, folded;
        std::span<const std::uint16_t> state, country;
        std::span<const std::uint8_t> flags, nameLength, foldedLength;
    };
    struct Section;
    class MappedFile;

    void ReadSections();
    void ReadSection(const Section& section);
    void ReadPlaces(const Section& section);
    void ReadCells(const Section& section);
    void ReadHeights(const Section& section);
    void CheckReferences() const;
    void CheckAreas(std::span<const std::byte> areas) const;
    AreaLabel AreaAt(std::span<const std::byte> areas, std::size_t index) const;

    std::shared_ptr<const MappedFile> m_file;
    std::span<const std::byte> m_bytes, m_names, m_countries, m_states, m_waters, m_heights;
    std::array<std::vector<VectorLayer>, 6> m_layers; // By BaseMapLayer, coarse to fine.
    PlaceColumns m_places;
    std::span<const std::uint32_t> m_nameOrder, m_cellStarts, m_cellPlaces, m_heightStarts;
    std::uint32_t m_cellBits = 0;
};

} // namespace ruvenmark
