#pragma once

#include "desktop/map/view/view_frame.h"
#include "platform/map_model.h"

#include <QPointF>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace ruvenmark {

// A marker as it is painted; it stands for `count` markers that would hide each other.
struct MarkerItem {
    std::uint32_t slot = 0;
    std::int16_t symbol = 0;
    bool bBalloon = false;
    std::uint32_t count = 1;
    QPointF at;
    bool bTrail = false; // A place that a moving station left: a dot.
    bool bFaded = false; // Heard too long ago; whoever paints tells it.
};

// Pixels from the middle of an item's picture to its side.
constexpr double HalfOf(const MarkerItem& item)
{
    constexpr double kMarkerHalf = 12, kTrailHalf = 5;
    return item.bTrail ? kTrailHalf : kMarkerHalf;
}

// Which markers are painted, and where. Markers within 4 pixels of each other count as one; where more than a few crowd
// into one square of the ground, one stands for all. So a million markers cost a look at each and no more pictures than
// fit on the screen. The squares are fixed to the ground: nothing flickers while the map is moved. The selected marker
// always stands for itself alone. Of points of trails that hide each other one is painted and stands for itself: they
// are no crowd.
class MarkerLayout {
public:
    static constexpr int kMargin = 160; // Pixels around the view, so that names reach into it.
    static constexpr int kSquare = 40;
    static constexpr std::uint32_t kMostInSquare = 4;
    static constexpr double kHides = 4;

    // The selected marker is never hidden by another.
    void Update(const std::vector<PinPoint>& points, const ViewFrame& frame, std::optional<std::uint32_t> selected);

    // In the order of painting: trails lie lowest, what was added last on top of the others, the selected one above
    // all.
    const std::vector<MarkerItem>& Items() const { return m_items; }

    // Tells which are faded, until the next Update: those that stand for old markers only. isOld(slot).
    void Fade(const std::vector<PinPoint>& points, const std::function<bool(std::uint32_t)>& isOld);

    // The markers an item stands for, newest first; of the view that was last arranged.
    std::vector<std::uint32_t> Members(const std::vector<PinPoint>& points, const MarkerItem& item) const;

private:
    struct Spot {
        std::uint32_t slot;
        float x, y;
    };
    struct Square {
        std::uint32_t count = 0;
        int bestRank = -1;
        Spot best{};
        std::array<Spot, kMostInSquare> spots{};
    };
    struct Window {
        std::uint32_t left = 0;
        std::int64_t top = 0;
        std::uint64_t spanX = 0, spanY = 0;
        double scale = 0, shiftX = 0, shiftY = 0; // Pixels per unit; pixels from the first square's edge.
        double world = 0;
        std::int32_t columns = 0, rows = 0;

        std::size_t SquareAt(const Spot& spot) const
        {
            const auto column = static_cast<std::int32_t>((double{spot.x} + shiftX) * (1.0 / kSquare));
            const auto row = static_cast<std::int32_t>((double{spot.y} + shiftY) * (1.0 / kSquare));
            return static_cast<std::size_t>(std::min(row, rows - 1) * columns + std::min(column, columns - 1));
        }
    };

    void SetWindow(const ViewFrame& frame);
    void AddAlone(const PinPoint& point, const Spot& spot);
    int Rank(std::uint32_t slot) const;
    template <typename Take>
    static void EachGroup(const Square& square, const Take& take);
    void Thin(const Square& square);
    void Add(const Spot& spot, std::uint32_t count);
    static Spot SpotOf(const MarkerItem& item);
    bool IsBelow(const MarkerItem& a, const MarkerItem& b) const;
    template <typename Visit>
    void EachInWindow(const std::vector<PinPoint>& points, Visit visit) const;

    const PinPoint* m_points = nullptr; // Only during Update.
    std::optional<std::uint32_t> m_selected;
    Window m_window;
    std::vector<Square> m_squares;
    std::vector<bool> m_trails; // Which spots of the window have a point of a trail.
    std::vector<MarkerItem> m_items;
};

} // namespace ruvenmark
