#include "desktop/map/widget/map_widget.h"
#include "desktop/map/widget/zoom_buttons.h"
#include "platform/map_model.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

ScenePaint MapWidget::HowToPaint() const
{
    ScenePaint how;
    how.selection = m_selection;
    how.palette = palette();
    how.font = font();
    how.now = m_clock();
    how.fadeAfter = m_fadeAfter;
    how.directions = m_directions;
    return how;
}

ScenePaint MapWidget::OnScreen() const
{
    ScenePaint how = HowToPaint();
    how.ratio = devicePixelRatioF();
    how.buttons = m_buttons->geometry();
    return how;
}

void MapWidget::GatheredChange()
{
    const bool bTold = m_balloons.Pinned() || m_balloons.Hovered(); // Of what is gone too.
    RefreshParts();
    const Map* map = m_control.ActiveMap();
    if (!map || bTold || !isVisible())
        return update(); // What balloons tell may have changed too.
    const std::optional<QRegion> changed = Lay(*map);
    if (!changed)
        return update();
    // At once, while the map is as it was laid.
    m_bLaid = true;
    repaint(*changed);
    m_bLaid = false;
    m_lastPaintNs = m_layNs + (changed->isEmpty() ? 0 : m_drawNs);
    m_sincePaint.start();
}

std::optional<QRegion> MapWidget::Lay(const Map& map)
{
    QElapsedTimer watch;
    watch.start();
    std::optional<QRegion> changed = m_scene.Lay(map, map.View(), OnScreen());
    m_layNs = watch.nsecsElapsed();
    return changed;
}

void MapWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const Map* map = m_control.ActiveMap();
    if (!map) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    const QRegion& region = event->region();
    const QRegion list = m_heap->isVisible() ? QRegion(m_heap->geometry()) : QRegion();
    const bool bAll = (QRegion(rect()) - region - list).isEmpty(); // Nothing is painted below the list.
    if (!m_bLaid) {
        const std::optional<QRegion> changed = Lay(*map);
        if (!bAll && !changed)
            update();
        else if (!bAll && !changed->subtracted(region).isEmpty())
            update(changed->subtracted(region));
    }
    QElapsedTimer watch;
    watch.start();
    const ScenePaint how = OnScreen();
    const MapLook look = m_scene.Draw(painter, *map, map->View(), how, bAll ? nullptr : &region);
    m_balloons.Paint(painter, {*map, map->View(), m_scene.Markers(), look, how.now});
    if (m_input.IsKeyboardHere()) {
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    ++m_paints;
    m_bPart = !bAll;
    m_drawNs = watch.nsecsElapsed();
    m_lastPaintNs = m_layNs + m_drawNs;
    m_sincePaint.start();
}

// The scene is arranged for the window again afterwards.
void MapWidget::PaintStill(QPainter& painter, const MapView& view, const ScenePaint& how)
{
    const Map& map = m_control.RequireMap();
    m_scene.Lay(map, view, how);
    const MapLook look = m_scene.Draw(painter, map, view, how);
    m_balloons.PaintStill(painter, {map, view, m_scene.Markers(), look, how.now});
    update();
}

QImage MapWidget::Picture(QSize size, qreal ratio)
{
    QImage picture(size * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(palette().color(QPalette::Window));
    const Map* map = m_control.ActiveMap();
    if (!map)
        return picture;
    MapView view = map->View();
    view.width = size.width();
    view.height = size.height();
    ScenePaint how = HowToPaint();
    how.ratio = ratio;
    how.bWait = true;
    QPainter painter(&picture);
    PaintStill(painter, view, how);
    return picture;
}

void MapWidget::PaintMap(QPainter& painter, const QRectF& target)
{
    const Map* map = m_control.ActiveMap();
    if (!map || target.isEmpty())
        return;
    MapView view = map->View();
    const double scale = std::min(target.width() / view.width, target.height() / view.height);
    view.width = static_cast<int>(std::lround(target.width() / scale));
    view.height = static_cast<int>(std::lround(target.height() / scale));
    ScenePaint how = HowToPaint();
    how.palette = QPalette(Qt::white); // Paper is white.
    how.bVector = how.bWait = true;
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(scale, scale);
    painter.setClipRect(QRectF(0, 0, view.width, view.height));
    PaintStill(painter, view, how);
    painter.restore();
}

} // namespace ruvenmark
