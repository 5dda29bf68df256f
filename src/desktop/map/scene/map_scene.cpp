#include "desktop/map/scene/map_scene.h"

#include "desktop/icons/icon_set.h"
#include "desktop/map/markers/marker_painter.h"
#include "desktop/map/scene/scale_bar.h"
#include "map/age.h"

#include <QFontMetricsF>
#include <QHashFunctions>
#include <QPainter>

#include <algorithm>
#include <iterator>
#include <utility>
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

void PaintCredits(QPainter& painter, const QString& credits, const QRectF& rect, const MapLook& look)
{
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

// All that is painted of a marker, selected or not.
QRectF PictureRect(const MarkerItem& item)
{
    const double half = HalfOf(item) + (item.bTrail ? 2 : 6);
    return {item.at.x() - half, item.at.y() - half, 2 * half, 2 * half};
}

std::vector<MarkerItem> Touched(const std::vector<MarkerItem>& items, const QRegion& region)
{
    std::vector<MarkerItem> touched;
    std::copy_if(items.begin(), items.end(), std::back_inserter(touched),
                 [&](const MarkerItem& item) { return region.intersects(PictureRect(item).toAlignedRect()); });
    return touched;
}

} // namespace

void MapScene::Arrange(const Map& map, const MapView& view, const MapSelection& selection)
{
    const ViewFrame frame(view);
    m_markers.Update(map.PinPoints(), frame, SelectedIn<Pushpin>(map.Pins(), selection));
    m_shapes.Update(map.Shapes(), frame);
}

std::optional<QRegion> MapScene::Lay(const Map& map, const MapView& view, const ScenePaint& how)
{
    Arrange(map, view, how.selection);
    if (how.fadeAfter > 0)
        m_markers.Fade(map.PinPoints(),
                       [&](std::uint32_t slot) { return IsFaded(how.now, map.Pins().At(slot)->heard, how.fadeAfter); });
    LayLabels(map, view, how);
    Whole whole{how,         view.centre,    view.zoom,     view.width,
                view.height, map.MapStyle(), map.MapFont(), m_ground.Credits(map.MapStyle())};
    whole.how.now = 0;
    const bool bSame = whole == m_whole;
    m_whole = std::move(whole);
    if (!bSame) { // While the view moves nothing else is asked.
        m_marks.reset();
        return std::nullopt;
    }
    const std::size_t shapesBefore = std::exchange(m_shapesNumber, ShapesNumber(map));
    const std::optional<SceneMarks> before = std::exchange(m_marks, MarksOf());
    return before && shapesBefore == m_shapesNumber ? SceneMarks::Difference(*before, *m_marks) : std::nullopt;
}

void MapScene::LayLabels(const Map& map, const MapView& view, const ScenePaint& how)
{
    const ViewFrame frame(view);
    const MapLook look = LookOf(map, how);
    m_labels.SetLook(look, how.ratio);
    std::vector<QRectF> taken{ScaleBarRect(view), CreditsRect(m_ground.Credits(map.MapStyle()), view, look)};
    if (!how.buttons.isEmpty())
        taken.push_back(how.buttons);
    m_labels.Place(m_markers.Items(), map.Pins(), frame, SelectedIn<Pushpin>(map.Pins(), how.selection), taken);
    m_grid.Reset(view.width, view.height);
    for (const QRectF& rect : taken)
        m_grid.Block(rect);
    m_labels.BlockIn(m_grid, m_markers.Items());
    m_ground.PlaceNames(frame, m_grid, GroundOf(map, how, nullptr));
    m_labels.PlaceTrails(m_markers.Items(), map.Pins(), frame, m_grid);
}

SceneMarks MapScene::MarksOf() const
{
    SceneMarks marks;
    for (const MarkerItem& item : m_markers.Items())
        marks.Add(SceneMark::Kind::Marker, item.slot, qHashMulti(0, item.symbol, item.bTrail, item.bFaded),
                  PictureRect(item));
    m_labels.Each([&](const StationLabels::Placed& placed, const QString& shown) {
        marks.Add(SceneMark::Kind::Name, placed.slot, qHash(shown), placed.rect);
    });
    if (const auto* names = m_ground.Names())
        for (const PlaceLabels::Name& name : *names)
            marks.Add(SceneMark::Kind::Place, static_cast<std::size_t>(name.face),
                      qHashMulti(0, name.text, name.dot.has_value()), name.rect);
    marks.Sort();
    return marks;
}

// They hide one another and leave one another out: where one changes, all are painted.
std::size_t MapScene::ShapesNumber(const Map& map) const
{
    std::size_t number = 0;
    const auto add = [&](std::uint32_t slot) {
        const ShapeData& shape = *map.Shapes().At(slot);
        number = qHashMulti(number, map.Shapes().RefAt(slot).id, shape.width, shape.foreColor, shape.weight,
                            shape.bBeginArrowhead, shape.bEndArrowhead);
    };
    for (const LineItem& line : m_shapes.Lines())
        add(line.slot);
    for (const CircleItem& circle : m_shapes.Circles())
        add(circle.slot);
    return number;
}

MapLook MapScene::LookOf(const Map& map, const ScenePaint& how) const
{
    return {how.palette, how.font, map.MapFont(), IsDark(how.palette) && !m_ground.ShowsTiles(map.MapStyle())};
}

MapGround::How MapScene::GroundOf(const Map& map, const ScenePaint& how, const QRegion* only) const
{
    const bool bDark = IsDark(how.palette) && !m_ground.ShowsTiles(map.MapStyle());
    return {map.MapStyle(), map.MapFont(), bDark, how.ratio, how.bVector, how.bWait, only};
}

void MapScene::DrawMarkers(QPainter& painter, const ScenePaint& how, const QRegion* only,
                           std::optional<std::uint32_t> selected, const QColor& ring)
{
    if (m_markers.Items().empty())
        return; // All symbols are drawn for the first marker, which would keep an empty map waiting.
    const qreal ratio = how.bVector ? 4 : how.ratio;
    const MapAtlas& atlas = m_icons.Atlas(kMarkerPixels, ratio);
    if (only)
        PaintMarkers(painter, Touched(m_markers.Items(), *only), atlas, ratio, selected, ring);
    else
        PaintMarkers(painter, m_markers.Items(), atlas, ratio, selected, ring);
}

MapLook MapScene::Draw(QPainter& painter, const Map& map, const MapView& view, const ScenePaint& how,
                       const QRegion* only)
{
    const ViewFrame frame(view);
    MapLook look = LookOf(map, how);
    const auto selectedPin = SelectedIn<Pushpin>(map.Pins(), how.selection);
    const MapGround::How ground = GroundOf(map, how, only);
    m_ground.Paint(painter, frame, ground);
    m_ground.PaintAbove(painter, frame, ground);
    if (how.directions)
        PaintDirectionsLine(painter, frame, *how.directions, look.accent);
    const ShapeLook shapes{SelectedIn<Shape>(map.Shapes(), how.selection), look.accent, ground.bDark};
    if (how.bVector || how.bWait)
        PaintShapes(painter, m_shapes.InView(), frame, shapes, only);
    else
        m_shapeLayer.Paint(painter, m_shapes, map.Shapes(), frame, shapes, how.ratio, only);
    DrawMarkers(painter, how, only, selectedPin, look.accent);
    m_labels.Paint(painter, how.bVector, only);
    const QRectF credits = CreditsRect(m_whole.credits, view, look);
    if (!only || only->intersects(ScaleBarRect(view).toAlignedRect()))
        PaintScaleBar(painter, view, look);
    if (!only || only->intersects(credits.toAlignedRect()))
        PaintCredits(painter, m_whole.credits, credits, look);
    return look;
}

} // namespace ruvenmark
