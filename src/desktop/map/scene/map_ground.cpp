#include "desktop/map/scene/map_ground.h"

#include "desktop/map/tiles/tile_painter.h"

#include <QPainter>

namespace ruvenmark {

MapGround::MapGround(const BaseMap* base, QObject* parent) : QObject(parent), m_base(base)
{
    if (m_base) {
        m_painter = std::make_unique<SquarePainter>(*m_base);
        m_names = std::make_unique<PlaceLabels>(*m_base);
        connect(m_painter.get(), &SquarePainter::Changed, this, &MapGround::Changed);
    }
    connect(&m_tiles, &MapTiles::Changed, this, &MapGround::Changed);
}

MapGround::~MapGround() = default;

bool MapGround::ShowsTiles(std::int32_t style) const
{
    return m_tiles.IsOn() && InfoOf(ToMapStyle(style)).bTiles;
}

QString MapGround::Credits(std::int32_t style) const
{
    QString base = QStringLiteral("GSHHG, Natural Earth, GeoNames");
    if (!ShowsTiles(style) || m_tiles.Attribution().isEmpty())
        return base;
    return m_tiles.Attribution() + QStringLiteral(" | ") + base;
}

void MapGround::Paint(QPainter& painter, const ViewFrame& frame, const How& how)
{
    const MapStyle style = ToMapStyle(how.style);
    if (!m_base) {
        painter.fillRect(frame.Rect(), PaletteFor(style, how.bDark).water);
    } else if (how.bVector) {
        const BaseMapArea area{frame.left, frame.top, frame.world, frame.width, frame.height, how.ratio};
        painter.save();
        BaseMapPainter(*m_base).Paint(painter, area, style, how.bDark);
        painter.restore();
    } else {
        m_painter->Paint(painter, frame, {style, how.bDark, how.ratio, how.bWait});
    }
}

void MapGround::PlaceNames(const ViewFrame& frame, LabelGrid& grid, const How& how)
{
    m_bNamed = m_names && !(ShowsTiles(how.style) && m_bCovered);
    if (m_bNamed)
        m_names->Place(frame, grid, {ToMapStyle(how.style), how.bDark, how.font, how.ratio, how.bVector});
}

void MapGround::PaintAbove(QPainter& painter, const ViewFrame& frame, const How& how)
{
    if (m_bNamed)
        m_names->Paint(painter, how.only);
    m_bCovered =
        ShowsTiles(how.style) && PaintTiles(painter, frame, m_tiles, how.ratio, InfoOf(ToMapStyle(how.style)).bPale);
}

} // namespace ruvenmark
