#include "desktop/map/labels/label_grid.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr int kWordBits = 64;
constexpr double kFar = 1e6; // Keeps far rectangles within an int.

} // namespace

void LabelGrid::Reset(int width, int height)
{
    m_columns = std::max(0, width) / kSquare;
    m_rows = std::max(0, height) / kSquare;
    m_words = (m_columns + kWordBits - 1) / kWordBits;
    m_taken.assign(static_cast<std::size_t>(m_words) * static_cast<std::size_t>(m_rows), 0);
}

LabelGrid::Squares LabelGrid::Around(const QRectF& rect)
{
    const auto first = [](double v) { return static_cast<int>(std::floor(std::clamp(v, -kFar, kFar) / kSquare)); };
    const auto last = [](double v) { return static_cast<int>(std::ceil(std::clamp(v, -kFar, kFar) / kSquare)) - 1; };
    const Squares squares{first(rect.left()), first(rect.top()), last(rect.right()), last(rect.bottom())};
    return {squares.left, squares.top, std::max(squares.left, squares.right), std::max(squares.top, squares.bottom)};
}

bool LabelGrid::IsInside(const Squares& squares) const
{
    return squares.left >= 0 && squares.top >= 0 && squares.right < m_columns && squares.bottom < m_rows;
}

// The squares' columns as bits of one word of a row.
std::uint64_t LabelGrid::Bits(const Squares& squares, int word) const
{
    const int first = std::max(squares.left - word * kWordBits, 0);
    const int last = std::min(squares.right - word * kWordBits, kWordBits - 1);
    if (first >= kWordBits || last < first)
        return 0;
    const std::uint64_t upTo = last == kWordBits - 1 ? ~std::uint64_t{0} : (std::uint64_t{1} << (last + 1)) - 1;
    return upTo & ~((std::uint64_t{1} << first) - 1);
}

bool LabelGrid::IsFree(const QRectF& rect) const
{
    const Squares squares = Around(rect);
    if (!IsInside(squares))
        return false;
    const auto words = static_cast<std::size_t>(m_words);
    for (int word = squares.left / kWordBits; word <= squares.right / kWordBits; ++word) {
        const std::uint64_t bits = Bits(squares, word);
        for (int row = squares.top; row <= squares.bottom; ++row)
            if ((m_taken[static_cast<std::size_t>(row) * words + static_cast<std::size_t>(word)] & bits) != 0)
                return false;
    }
    return true;
}

bool LabelGrid::TryPlace(const QRectF& rect)
{
    if (!IsFree(rect))
        return false;
    Block(rect);
    return true;
}

void LabelGrid::Block(const QRectF& rect)
{
    Squares squares = Around(rect);
    squares = {std::max(squares.left, 0), std::max(squares.top, 0), std::min(squares.right, m_columns - 1),
               std::min(squares.bottom, m_rows - 1)};
    if (squares.left > squares.right || squares.top > squares.bottom)
        return;
    const auto words = static_cast<std::size_t>(m_words);
    for (int word = squares.left / kWordBits; word <= squares.right / kWordBits; ++word)
        for (int row = squares.top; row <= squares.bottom; ++row)
            m_taken[static_cast<std::size_t>(row) * words + static_cast<std::size_t>(word)] |= Bits(squares, word);
}

} // namespace ruvenmark
