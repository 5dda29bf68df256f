#include "desktop/map/scene/map_scene.h"

#include "desktop/icons/icon_set.h"
#include "desktop/map/markers/marker_painter.h"
#include "desktop/map/scene/map_ground.h"
#include "desktop/map/scene/scale_bar.h"
#include "map/age.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace ruvenmark {

namespace {

constexpr double kMargin = 8;

QRectF CreditsRect(const QString& credits, const MapView& view, const MapLook& look)
{
    const QFontMetricsF metrics(look.smallFont);
    const double room = view.width - ScaleBarRect(view).right() - 3 * kMargin;
    const double width = std::clamp(metrics.horizontalAdvance(credits) + 8, 0.0, std::max(room, 0.0));
    return {view.width - width, view.height - metrics.height() - 2, width, metrics.height() + 2};
}

void PaintCredits(QPainter& painter, const QString& credits, const MapView& view, const MapLook& look)
{
    const QRectF rect = CreditsRect(credits, view, look);
    QColor plate = look.plate;
    plate.setAlpha(190);
    painter.save();
    painter.fillRect(rect, plate);
    painter.setFont(look.smallFont);
    painter.setPen(look.plateText);
    const QString shown = QFontMetricsF(look.smallFont).elidedText(credits, Qt::ElideRight, rect.width() - 8);
    painter.drawText(rect.adjusted(4, 0, -4, 0), Qt::AlignCenter, shown);
    painter.restore();
}

} // namespace

void MapScene::Arrange(const Map& map, const MapView& view, const MapSelection& selection)
{
    const ViewFrame frame(view);
    m_markers.Update(map.PinPoints(), frame, SelectedIn<Pushpin>(map.Pins(), selection));
    m_shapes.Update(map.Shapes(), frame);
}

MapLook MapScene::Paint(QPainter& painter, const Map& map, const MapView& view, const ScenePaint& how)
{
    Arrange(map, view, how.selection);
    if (how.fadeAfter > 0)
        m_markers.Fade([&](std::uint32_t slot) { return IsFaded(how.now, map.Pins().At(slot)->heard, how.fadeAfter); });
    const ViewFrame frame(view);
    const bool bDark = IsDark(how.palette) && !m_ground.ShowsTiles(map.MapStyle());
    MapLook look(how.palette, how.font, map.MapFont(), bDark);
    const auto selectedPin = SelectedIn<Pushpin>(map.Pins(), how.selection);
    const MapGround::How ground{map.MapStyle(), map.MapFont(), bDark, how.ratio, how.bVector, how.bWait};
    const QString credits = m_ground.Credits(map.MapStyle());

    m_labels.SetLook(look, how.ratio);
    std::vector<QRectF> taken{ScaleBarRect(view), CreditsRect(credits, view, look)};
    if (!how.buttons.isEmpty())
        taken.push_back(how.buttons);
    m_labels.Place(m_markers.Items(), map.Pins(), frame, selectedPin, taken);
    m_grid.Reset(view.width, view.height);
    for (const QRectF& rect : taken)
        m_grid.Block(rect);
    m_labels.BlockIn(m_grid, m_markers.Items());

    m_ground.Paint(painter, frame, ground);
    m_ground.PaintAbove(painter, frame, m_grid, ground);
    m_labels.PlaceTrails(m_markers.Items(), map.Pins(), frame, m_grid);
    if (how.directions)
        PaintDirectionsLine(painter, frame, *how.directions, look.accent);
    const ShapeLook shapes{SelectedIn<Shape>(map.Shapes(), how.selection), look.accent, bDark};
    if (how.bVector || how.bWait)
        PaintShapes(painter, m_shapes, map.Shapes(), frame, shapes);
    else
        m_shapeLayer.Paint(painter, m_shapes, map.Shapes(), frame, shapes, how.ratio);
    const qreal pictures = how.bVector ? 4 : how.ratio;
    PaintMarkers(painter, m_markers.Items(), m_icons.Atlas(kMarkerPixels, pictures), pictures, selectedPin,
                 look.accent);
    m_labels.Paint(painter, how.bVector);
    PaintScaleBar(painter, view, look);
    PaintCredits(painter, credits, view, look);
    return look;
}

} // namespace ruvenmark
