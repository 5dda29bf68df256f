#include "mapfiles/vector_layer.h"

#include "platform/failure.h"

#include <algorithm>
#include <cstring>

namespace ruvenmark {

namespace {

constexpr std::uint32_t kMaxDepth = 14;
constexpr std::size_t kIndexEntry = 8; // Key and offset, 32 bits each.

std::uint32_t ReadWord(std::span<const std::byte> bytes, std::size_t at)
{
    std::uint32_t value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

// Every second bit of a Morton code, from the lowest on.
std::uint32_t EvenBits(std::uint32_t code)
{
    std::uint32_t out = 0;
    for (std::uint32_t bit = 0; bit < kMaxDepth; ++bit)
        out |= (code >> (2 * bit) & 1U) << bit;
    return out;
}

} // namespace

VectorLayer::VectorLayer(std::span<const std::byte> section, std::uint32_t leafCount, std::uint32_t bits,
                         double topZoom)
    : m_bits(bits), m_topZoom(topZoom)
{
    if (bits < kMaxDepth - 1 || bits > 28 || leafCount > section.size() / kIndexEntry)
        throw Failure("The base map is damaged: a layer does not fit its section.");
    m_index = section.first(leafCount * kIndexEntry);
    m_data = section.subspan(leafCount * kIndexEntry);
    for (std::size_t i = 0; i < leafCount; ++i) {
        const bool bOrdered = i == 0 || Key(i - 1) < Key(i);
        const std::uint32_t depth = Key(i) & 15U;
        if (!bOrdered || depth > kMaxDepth || depth > bits || ReadWord(m_index, kIndexEntry * i + 4) >= m_data.size())
            throw Failure("The base map is damaged: the index of a layer is out of order.");
    }
}

std::uint32_t VectorLayer::Key(std::size_t leaf) const
{
    return ReadWord(m_index, kIndexEntry * leaf);
}

VectorLayer::Leaf VectorLayer::LeafAt(std::size_t index) const
{
    const std::uint32_t key = Key(index), depth = key & 15U, morton = key >> 4U;
    const auto cell = [&](std::uint32_t code) {
        const std::uint32_t smallest = EvenBits(code);
        return static_cast<std::int32_t>(m_bits >= kMaxDepth ? smallest << (m_bits - kMaxDepth)
                                                             : smallest >> (kMaxDepth - m_bits));
    };
    Leaf leaf;
    leaf.corner = {cell(morton), cell(morton >> 1U)};
    leaf.size = std::int32_t{1} << (m_bits - depth);
    leaf.offset = ReadWord(m_index, kIndexEntry * index + 4);
    return leaf;
}

void VectorLayer::Visit(const WorldRect& rect, std::uint32_t depth, std::uint32_t morton, std::size_t first,
                        std::size_t last, std::vector<Leaf>& found) const
{
    if (first == last)
        return;
    const double cell = 1.0 / static_cast<double>(1U << depth), small = 1.0 / static_cast<double>(1U << kMaxDepth);
    const double x = EvenBits(morton) * small, y = EvenBits(morton >> 1U) * small;
    if (x > rect.right || y > rect.bottom || x + cell < rect.left || y + cell < rect.top)
        return;
    if (depth == kMaxDepth || (Key(first) & 15U) <= depth) {
        found.push_back(LeafAt(first));
        return;
    }
    const std::uint32_t quarter = 1U << (2 * (kMaxDepth - depth - 1));
    for (std::uint32_t child = 0; child < 4; ++child) {
        const std::uint32_t begin = morton + child * quarter;
        std::size_t end = first, beyond = last;
        while (end < beyond) {
            const std::size_t middle = end + (beyond - end) / 2;
            if ((Key(middle) >> 4U) < begin + quarter)
                end = middle + 1;
            else
                beyond = middle;
        }
        Visit(rect, depth + 1, begin, first, end, found);
        first = end;
    }
}

std::vector<VectorLayer::Leaf> VectorLayer::LeavesIn(const WorldRect& rect) const
{
    std::vector<Leaf> found;
    Visit(rect, 0, 0, 0, m_index.size() / kIndexEntry, found);
    return found;
}

LeafReader::LeafReader(const VectorLayer& layer, const VectorLayer::Leaf& leaf)
    : m_rest(layer.m_data.subspan(leaf.offset)), m_leaf(leaf)
{
    if (!ReadVarint(m_left))
        m_left = 0;
}

bool LeafReader::ReadVarint(std::uint32_t& value)
{
    value = 0;
    for (std::uint32_t shift = 0; shift < 32 && !m_rest.empty(); shift += 7) {
        const auto byte = std::to_integer<std::uint32_t>(m_rest.front());
        m_rest = m_rest.subspan(1);
        value |= (byte & 127U) << shift;
        if (byte < 128)
            return true;
    }
    return false;
}

// Adds a zigzag step; unsigned, so that damaged numbers wrap instead of overflowing.
bool LeafReader::ReadStep(std::uint32_t& value)
{
    std::uint32_t step = 0;
    if (!ReadVarint(step))
        return false;
    value += (step >> 1U) ^ (0U - (step & 1U));
    return true;
}

bool LeafReader::Next()
{
    m_points.clear();
    if (m_left == 0 || m_rest.empty())
        return false;
    --m_left;
    m_attribute = std::to_integer<std::uint8_t>(m_rest.front());
    m_rest = m_rest.subspan(1);
    std::uint32_t count = 0;
    if (!ReadVarint(count) || count > m_rest.size() / 2)
        return false;
    m_points.reserve(count);
    auto x = static_cast<std::uint32_t>(m_leaf.corner.x), y = static_cast<std::uint32_t>(m_leaf.corner.y);
    for (std::uint32_t i = 0; i < count; ++i) {
        if (!ReadStep(x) || !ReadStep(y))
            return false;
        // Unsigned: what lies left of or above the corner is far beyond the size, too.
        const auto size = static_cast<std::uint32_t>(m_leaf.size);
        if (x - static_cast<std::uint32_t>(m_leaf.corner.x) > size ||
            y - static_cast<std::uint32_t>(m_leaf.corner.y) > size)
            return false;
        m_points.push_back({static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)});
    }
    return true;
}

bool LeafReader::IsCut(UnitPoint from, UnitPoint to) const
{
    const auto onSide = [&](std::int32_t a, std::int32_t b, std::int32_t low) {
        return a == b && (a == low || a - low == m_leaf.size);
    };
    return onSide(from.x, to.x, m_leaf.corner.x) || onSide(from.y, to.y, m_leaf.corner.y);
}

} // namespace ruvenmark
