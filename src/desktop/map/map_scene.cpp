#include "desktop/map/map_scene.h"

#include "desktop/icons/icon_set.h"
#include "desktop/map/map_ground.h"
#include "desktop/map/marker_painter.h"
#include "desktop/map/scale_bar.h"
#include "desktop/map/shape_painter.h"
#include "desktop/shown_text.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace ruvenmark {

namespace {

constexpr double kMargin = 8;
constexpr std::size_t kMostListed = 10; // Names of a group in its balloon.

const MarkerItem* ItemOf(const MarkerLayout& layout, std::uint32_t slot)
{
    const auto& items = layout.Items();
    const auto it = std::find_if(items.rbegin(), items.rend(), [slot](const auto& item) { return item.slot == slot; });
    return it == items.rend() ? nullptr : &*it;
}

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

void MapScene::Paint(QPainter& painter, const Map& map, const MapView& view, const ScenePaint& how)
{
    Arrange(map, view, how.selection);
    const ViewFrame frame(view);
    const bool bDark = IsDark(how.palette) && !m_ground.ShowsTiles(map.MapStyle());
    const MapLook look(how.palette, how.font, map.MapFont(), bDark);
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
    PaintShapes(painter, m_shapes, map.Shapes(), frame,
                {SelectedIn<Shape>(map.Shapes(), how.selection), look.accent, bDark});
    const qreal pictures = how.bVector ? 4 : how.ratio;
    PaintMarkers(painter, m_markers.Items(), m_icons.Atlas(kMarkerPixels, pictures), pictures, selectedPin,
                 look.accent);
    m_labels.Paint(painter, how.bVector);
    PaintScaleBar(painter, view, look);
    PaintCredits(painter, credits, view, look);
    m_pinnedRect = m_pinnedClose = QRectF();
    if (how.pinned)
        PaintBalloon(painter, map, *how.pinned, view, look, how.bWait ? BalloonKind::Still : BalloonKind::Pinned);
    if (how.hovered && how.hovered != how.pinned)
        PaintBalloon(painter, map, *how.hovered, view, look, BalloonKind::Hovered);
}

BalloonText MapScene::TextOf(const Map& map, const MarkerItem& item, BalloonKind kind) const
{
    const PinData* pin = map.Pins().At(item.slot);
    if (!pin || item.count == 1)
        return pin ? BalloonOf(*pin) : BalloonText();
    const std::vector<std::uint32_t> members = m_markers.Members(map.PinPoints(), item);
    if (kind != BalloonKind::Hovered) {
        BalloonText text = BalloonOf(*pin);
        if (kind == BalloonKind::Still)
            return text;
        const auto at = std::find(members.begin(), members.end(), item.slot) - members.begin() + 1;
        text.lines.append(QStringLiteral("%1 of %2 here; click again for the next").arg(at).arg(members.size()));
        return text;
    }
    BalloonText text{QStringLiteral("%1 markers here").arg(members.size()), {}};
    for (std::size_t i = 0; i < std::min(members.size(), kMostListed); ++i)
        text.lines.append(BalloonOf(*map.Pins().At(members[i])).title);
    if (members.size() > kMostListed)
        text.lines.append(QStringLiteral("and %1 more").arg(members.size() - kMostListed));
    return text;
}

void MapScene::PaintBalloon(QPainter& painter, const Map& map, SlotRef ref, const MapView& view, const MapLook& look,
                            BalloonKind kind)
{
    const PinData* pin = map.Pins().Find(ref);
    if (!pin)
        return;
    const ViewFrame frame(view);
    const MarkerItem* item = ItemOf(m_markers, ref.slot);
    const QPointF at = item ? item->at : frame.ToPixel(ToMercator(pin->point));
    const QRectF area = frame.Rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (!area.adjusted(-20, -20, 20, 20).contains(at))
        return;
    const bool bPinned = kind == BalloonKind::Pinned;
    const Balloon balloon(item ? TextOf(map, *item, kind) : BalloonOf(*pin), at, area, look, bPinned);
    balloon.Paint(painter);
    if (bPinned) {
        m_pinnedRect = balloon.Rect();
        m_pinnedClose = balloon.CloseRect();
    }
}

} // namespace ruvenmark
