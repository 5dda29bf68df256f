#include "desktop/map/markers/marker_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace ruvenmark {

namespace {

constexpr double kUnits = 4294967296.0; // Of a PinPoint in the world.
constexpr std::size_t kTrailSpots = 2;  // A side of a square: the line shows between the dots.

} // namespace

void MarkerLayout::SetWindow(const ViewFrame& frame)
{
    const double perUnit = frame.world / kUnits;
    const double left = frame.left - kMargin / frame.world;
    const double top = frame.top - kMargin / frame.world;
    m_window.left = static_cast<std::uint32_t>((left - std::floor(left)) * kUnits);
    m_window.top = static_cast<std::int64_t>(top * kUnits);
    m_window.spanX = static_cast<std::uint64_t>((frame.width + 2 * kMargin) / perUnit);
    m_window.spanY = static_cast<std::uint64_t>((frame.height + 2 * kMargin) / perUnit);
    m_window.scale = perUnit;
    m_window.world = frame.world;
    const auto shift = [&](double edge) { return edge - std::floor(edge / kSquare) * kSquare; };
    m_window.shiftX = shift(left * frame.world);
    m_window.shiftY = shift(top * frame.world);
    m_window.columns = (frame.width + 2 * kMargin) / kSquare + 2;
    m_window.rows = (frame.height + 2 * kMargin) / kSquare + 2;
}

// Newest first; positions are told from the corner of the window with its margin. Where the view is wider than the
// world, a marker comes once for each copy.
template <typename Visit>
void MarkerLayout::EachInWindow(const std::vector<PinPoint>& points, Visit visit) const
{
    const Window window = m_window;
    const double right = static_cast<double>(window.spanX) * window.scale;
    const PinPoint* const first = points.data();
    for (const PinPoint* point = first + points.size(); point != first;) {
        --point;
        const std::uint32_t dx = point->x - window.left;
        const auto dy = static_cast<std::uint64_t>(static_cast<std::int64_t>(point->y) - window.top);
        if (dx >= window.spanX || dy >= window.spanY || !point->bLive)
            continue;
        const auto slot = static_cast<std::uint32_t>(point - first);
        const double y = static_cast<double>(dy) * window.scale;
        for (double x = dx * window.scale; x < right; x += window.world)
            visit(*point, Spot{slot, static_cast<float>(x), static_cast<float>(y)});
    }
}

// Which of several markers is seen: one that shows its name, else the newest.
int MarkerLayout::Rank(std::uint32_t slot) const
{
    return m_points[slot].bBalloon ? 1 : 0;
}

// Stands for itself alone: the selected one, and the newest point of a trail in each spot.
void MarkerLayout::AddAlone(const PinPoint& point, const Spot& spot)
{
    if (m_selected == spot.slot || !point.bTrail)
        return Add(spot, 1);
    const std::size_t perRow = static_cast<std::size_t>(m_window.columns) * kTrailSpots;
    const std::size_t rows = static_cast<std::size_t>(m_window.rows) * kTrailSpots;
    const auto column = static_cast<std::size_t>((double{spot.x} + m_window.shiftX) * kTrailSpots / kSquare);
    const auto row = static_cast<std::size_t>((double{spot.y} + m_window.shiftY) * kTrailSpots / kSquare);
    const std::size_t at = std::min(row, rows - 1) * perRow + std::min(column, perRow - 1);
    if (m_trails[at])
        return;
    m_trails[at] = true;
    Add(spot, 1);
}

bool MarkerLayout::IsBelow(const MarkerItem& a, const MarkerItem& b) const
{
    const bool bSelectedA = m_selected == a.slot, bSelectedB = m_selected == b.slot;
    if (bSelectedA != bSelectedB)
        return bSelectedB;
    return a.bTrail != b.bTrail ? a.bTrail : a.slot < b.slot;
}

void MarkerLayout::Update(const std::vector<PinPoint>& points, const ViewFrame& frame,
                          std::optional<std::uint32_t> selected)
{
    m_points = points.data();
    m_selected = selected;
    SetWindow(frame);
    m_squares.assign(static_cast<std::size_t>(m_window.columns) * static_cast<std::size_t>(m_window.rows), {});
    m_trails.assign(m_squares.size() * kTrailSpots * kTrailSpots, false);
    m_items.clear();
    // For each of a million: what it reads stays in registers.
    Square* const squares = m_squares.data();
    const Window window = m_window;
    const std::uint64_t selectedSlot = selected ? *selected : std::numeric_limits<std::uint64_t>::max();
    EachInWindow(points, [=, this](const PinPoint& point, const Spot& spot) {
        if (spot.slot == selectedSlot || point.bTrail)
            return AddAlone(point, spot);
        Square& square = squares[window.SquareAt(spot)];
        const int rank = static_cast<int>(point.bBalloon); // As Rank tells.
        if (rank > square.bestRank) {
            square.best = spot;
            square.bestRank = rank;
        }
        if (square.count < kMostInSquare)
            square.spots[square.count] = spot;
        ++square.count;
    });
    for (const Square& square : m_squares)
        if (square.count > kMostInSquare)
            Add(square.best, square.count);
        else
            Thin(square);
    std::sort(m_items.begin(), m_items.end(), [this](const auto& a, const auto& b) { return IsBelow(a, b); });
    m_points = nullptr;
}

// Calls `take` with each group of markers that hide one another, the first of a group ahead.
template <typename Take>
void MarkerLayout::EachGroup(const Square& square, const Take& take)
{
    std::array<bool, kMostInSquare> taken{};
    std::array<const Spot*, kMostInSquare> group{};
    for (std::size_t i = 0; i < square.count; ++i) {
        if (taken[i])
            continue;
        const Spot& first = square.spots[i];
        std::size_t size = 0;
        group[size++] = &first;
        for (std::size_t j = i + 1; j < square.count; ++j) {
            const Spot& other = square.spots[j];
            if (taken[j] || std::abs(other.x - first.x) >= kHides || std::abs(other.y - first.y) >= kHides)
                continue;
            taken[j] = true;
            group[size++] = &other;
        }
        take(std::span(group.data(), size));
    }
}

void MarkerLayout::Thin(const Square& square)
{
    EachGroup(square, [this](std::span<const Spot* const> group) {
        const Spot* best = group.front();
        for (const Spot* other : group)
            if (Rank(other->slot) > Rank(best->slot))
                best = other;
        Add(*best, static_cast<std::uint32_t>(group.size()));
    });
}

void MarkerLayout::Add(const Spot& spot, std::uint32_t count)
{
    const PinPoint& point = m_points[spot.slot];
    m_items.push_back({.slot = spot.slot,
                       .symbol = point.symbol,
                       .bBalloon = point.bBalloon,
                       .count = count,
                       .at = QPointF(static_cast<double>(spot.x) - kMargin, static_cast<double>(spot.y) - kMargin),
                       .bTrail = point.bTrail && m_selected != spot.slot});
}

MarkerLayout::Spot MarkerLayout::SpotOf(const MarkerItem& item)
{
    return {item.slot, static_cast<float>(item.at.x() + kMargin), static_cast<float>(item.at.y() + kMargin)};
}

// The many of a crowded square are looked at once for all such squares.
void MarkerLayout::Fade(const std::vector<PinPoint>& points, const std::function<bool(std::uint32_t)>& isOld)
{
    std::vector<bool> doubtful(
        m_squares.size()); // Where the one that is seen is old, and nobody younger was found yet.
    bool bDoubt = false;
    for (MarkerItem& item : m_items) {
        item.bFaded = isOld(item.slot);
        if (!item.bFaded || item.count == 1)
            continue;
        const std::size_t at = m_window.SquareAt(SpotOf(item));
        if (m_squares[at].count > kMostInSquare) {
            doubtful[at] = bDoubt = true;
            continue;
        }
        const auto members = Members(points, item);
        item.bFaded = std::all_of(members.begin(), members.end(), isOld);
    }
    if (!bDoubt)
        return;
    EachInWindow(points, [&](const PinPoint& point, const Spot& spot) {
        const std::size_t at = m_window.SquareAt(spot);
        if (doubtful[at] && !point.bTrail && m_selected != spot.slot && !isOld(spot.slot))
            doubtful[at] = false;
    });
    for (MarkerItem& item : m_items) {
        const std::size_t at = m_window.SquareAt(SpotOf(item));
        if (item.bFaded && item.count > kMostInSquare)
            item.bFaded = doubtful[at];
    }
}

std::vector<std::uint32_t> MarkerLayout::Members(const std::vector<PinPoint>& points, const MarkerItem& item) const
{
    std::vector<std::uint32_t> members;
    if (item.count == 1)
        return {item.slot};
    const std::size_t at = m_window.SquareAt(SpotOf(item));
    const Square& square = m_squares[at];
    if (square.count > kMostInSquare)
        EachInWindow(points, [&](const PinPoint& point, const Spot& other) {
            if (m_window.SquareAt(other) == at && m_selected != other.slot && !point.bTrail)
                members.push_back(other.slot);
        });
    else
        EachGroup(square, [&](std::span<const Spot* const> group) {
            if (std::none_of(group.begin(), group.end(), [&](const Spot* one) { return one->slot == item.slot; }))
                return;
            for (const Spot* one : group)
                members.push_back(one->slot);
        });
    return members;
}

} // namespace ruvenmark
