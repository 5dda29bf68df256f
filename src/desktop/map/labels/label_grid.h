#pragma once

#include <QRectF>

#include <cstdint>
#include <vector>

namespace ruvenmark {

// Who is written where on the map window: names of stations first, then names of places, through the same grid, so that
// nothing overprints. In pixels from the left top corner, rounded outward to small squares.
class LabelGrid {
public:
    // Empty, for a window of this size.
    void Reset(int width, int height);

    // Takes the rectangle if all of it is inside the window and free.
    bool TryPlace(const QRectF& rect);
    bool IsFree(const QRectF& rect) const;
    // Takes what of the rectangle is inside the window, free or not: for what is painted anyway.
    void Block(const QRectF& rect);

private:
    static constexpr int kSquare = 4;
    struct Squares {
        int left, top, right, bottom; // The last ones are inside.
    };

    static Squares Around(const QRectF& rect);
    bool IsInside(const Squares& squares) const;
    std::uint64_t Bits(const Squares& squares, int word) const;

    int m_columns = 0, m_rows = 0, m_words = 0;
    std::vector<std::uint64_t> m_taken; // Row by row, a bit for each square.
};

} // namespace ruvenmark
