#include "desktop/icons/map_atlas.h"

#include <cassert>

namespace ruvenmark {
namespace {

constexpr int kColumns = 10;
// Keeps a neighbour's edge out of a picture that is drawn between two pixels.
constexpr int kGutter = 1;

} // namespace

MapAtlas::MapAtlas(const std::map<int, QPixmap>& pictures, int cell, int fallback, qreal ratio)
    : m_cell(cell), m_ratio(ratio)
{
    assert(pictures.contains(fallback));
    const int step = cell + kGutter;
    const int rows = (static_cast<int>(pictures.size()) + kColumns - 1) / kColumns;
    m_sheet = QPixmap(kColumns * step, rows * step);
    m_sheet.fill(Qt::transparent);
    const auto place = [step](int index) { return QPoint(index % kColumns * step, index / kColumns * step); };
    const auto standIn = std::distance(pictures.begin(), pictures.find(fallback));
    m_fallback = place(static_cast<int>(standIn));
    m_places.assign(static_cast<std::size_t>(pictures.rbegin()->first) + 1, m_fallback);
    QPainter painter(&m_sheet);
    int index = 0;
    for (const auto& [number, picture] : pictures) {
        m_places[static_cast<std::size_t>(number)] = place(index);
        painter.drawPixmap(place(index++), picture);
    }
}

QRect MapAtlas::Source(int number) const
{
    const auto index = static_cast<std::size_t>(number);
    const bool bKnown = number >= 0 && index < m_places.size();
    return {bKnown ? m_places[index] : m_fallback, QSize(m_cell, m_cell)};
}

QPainter::PixmapFragment MapAtlas::Fragment(int number, QPointF centre) const
{
    const qreal scale = 1 / m_ratio;
    return QPainter::PixmapFragment::create(centre, Source(number), scale, scale);
}

} // namespace ruvenmark
