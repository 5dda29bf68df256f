#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ruvenmark {

// A part of the world in Web Mercator: 0 to 1 from west to east and from north to south.
struct WorldRect {
    double left = 0, top = 0, right = 1, bottom = 1;
};

struct UnitPoint {
    std::int32_t x = 0, y = 0;
    friend bool operator==(const UnitPoint&, const UnitPoint&) = default;
};

// One layer of the base map at one level of detail: features cut at the leaves of a quadtree. Lends from the file's
// bytes.
class VectorLayer {
public:
    struct Leaf {
        UnitPoint corner;      // Left top.
        std::int32_t size = 0; // Of each side.
        std::uint32_t offset = 0;
    };

    // bits: the world is 2^bits units wide. topZoom: up to which zoom this level is fine enough. Raises Failure when
    // the index is not in order.
    VectorLayer(std::span<const std::byte> section, std::uint32_t leafCount, std::uint32_t bits, double topZoom);

    double TopZoom() const { return m_topZoom; }
    double UnitsPerWorld() const { return static_cast<double>(std::int64_t{1} << m_bits); }
    std::vector<Leaf> LeavesIn(const WorldRect& rect) const;

private:
    friend class LeafReader;

    std::uint32_t Key(std::size_t leaf) const;
    void Visit(const WorldRect& rect, std::uint32_t depth, std::uint32_t morton, std::size_t first, std::size_t last,
               std::vector<Leaf>& found) const;
    Leaf LeafAt(std::size_t index) const;

    std::span<const std::byte> m_index, m_data;
    std::uint32_t m_bits;
    double m_topZoom;
};

// Reads the features of a leaf one after the other.
class LeafReader {
public:
    LeafReader(const VectorLayer& layer, const VectorLayer::Leaf& leaf);

    // False at the end, and at the first thing that cannot be read.
    bool Next();
    std::uint8_t Attribute() const { return m_attribute; }
    // A ring does not repeat its first point.
    const std::vector<UnitPoint>& Points() const { return m_points; }
    // An edge along the leaf's side comes from cutting: filled, never stroked.
    bool IsCut(UnitPoint from, UnitPoint to) const;

private:
    bool ReadVarint(std::uint32_t& value);
    bool ReadStep(std::uint32_t& value);

    std::span<const std::byte> m_rest;
    VectorLayer::Leaf m_leaf;
    std::uint32_t m_left = 0;
    std::uint8_t m_attribute = 0;
    std::vector<UnitPoint> m_points;
};

} // namespace ruvenmark
