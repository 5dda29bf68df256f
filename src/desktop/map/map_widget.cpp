#include "desktop/map/map_widget.h"

#include "desktop/icons/icon_set.h"
#include "desktop/map/earth.h"
#include "desktop/map/view_moves.h"
#include "desktop/map/zoom_buttons.h"
#include "platform/map_model.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr int kGatherMilliseconds = 45;
constexpr int kButtonMargin = 12;

} // namespace

MapWidget::MapWidget(MapControl& control, IconSet& icons, const BaseMap* base, QWidget* parent)
    : QWidget(parent), m_control(control), m_ground(base), m_scene(icons, m_ground),
      m_buttons(new ZoomButtons(icons, this))
{
    setObjectName(QStringLiteral("mpCtrl"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(120, 90);
    setAccessibleName(QStringLiteral("Map"));
    setAccessibleDescription(QStringLiteral(
        "Arrow keys move the map, plus and minus zoom, Home shows the whole region, Escape closes the balloon."));
    m_gather.setSingleShot(true);
    connect(&m_gather, &QTimer::timeout, this, &MapWidget::GatheredChange);
    connect(&m_ground, &MapGround::Changed, this, qOverload<>(&QWidget::update));
    connect(m_buttons, &ZoomButtons::ZoomIn, this, &MapWidget::ZoomIn);
    connect(m_buttons, &ZoomButtons::ZoomOut, this, &MapWidget::ZoomOut);
    m_controlEvents.push_back(m_control.Replaced.Observe([this] { ObserveMap(); }));
    m_controlEvents.push_back(m_control.ControlChanged.Observe([this] { UpdatePointer(); }));
    ObserveMap();
    UpdatePointer();
}

MapWidget::~MapWidget() = default;

void MapWidget::ObserveMap()
{
    m_mapEvents.clear();
    Map* map = m_control.ActiveMap();
    if (!map)
        return;
    m_mapEvents.push_back(map->Changed.Observe([this] { MapChanged(); }));
    m_mapEvents.push_back(map->ViewChanged.Observe([this] { MapChanged(); }));
    map->SetSize(width(), height());
    DropTheGone();
    UpdateButtons();
    update();
}

// Called for every report: nothing but a look at a timer.
void MapWidget::MapChanged()
{
    if (m_bOwnMove)
        update();
    else if (!m_gather.isActive())
        m_gather.start(static_cast<int>(std::max<qint64>(kGatherMilliseconds, 4 * m_lastPaint)));
}

void MapWidget::GatheredChange()
{
    DropTheGone();
    UpdateButtons();
    update();
}

void MapWidget::DropTheGone()
{
    const Map* map = m_control.ActiveMap();
    const bool bSelected = !std::holds_alternative<std::monostate>(m_selection);
    if (bSelected &&
        !(map && (SelectedIn<Pushpin>(map->Pins(), m_selection) || SelectedIn<Shape>(map->Shapes(), m_selection))))
        Select({});
    const auto isGone = [map](const std::optional<SlotRef>& pin) { return pin && !(map && map->Pins().Find(*pin)); };
    if (isGone(m_pinned))
        m_pinned.reset();
    if (isGone(m_hovered))
        m_hovered.reset();
}

void MapWidget::UpdatePointer()
{
    const bool bDragging = m_drag && m_drag->bMoving;
    if (m_control.MousePointer() == kPointerWait)
        setCursor(Qt::WaitCursor);
    else if (bDragging)
        setCursor(Qt::ClosedHandCursor);
    else
        setCursor(m_control.MousePointer() == kPointerCross ? Qt::CrossCursor : Qt::ArrowCursor);
}

void MapWidget::UpdateButtons()
{
    const Map* map = m_control.ActiveMap();
    m_buttons->SetEnabled(map && map->View().zoom < kMaxZoom, map && map->View().zoom > LeastZoom(height()));
}

// --- The view

void MapWidget::MoveTo(const ViewTarget& target)
{
    Map* map = m_control.ActiveMap();
    if (!map)
        return;
    const ViewTarget kept = WithinWorld(target, size());
    m_bOwnMove = true;
    map->SetView(FromMercator(kept.centre), kept.zoom);
    m_bOwnMove = false;
    m_hovered.reset();
    UpdateButtons();
    update();
}

void MapWidget::ZoomAbout(QPointF point, double levels)
{
    if (const Map* map = m_control.ActiveMap())
        MoveTo(ZoomedAbout(map->View(), point, levels));
}

void MapWidget::ZoomIn()
{
    ZoomAbout(QRectF(rect()).center(), 1);
}

void MapWidget::ZoomOut()
{
    ZoomAbout(QRectF(rect()).center(), -1);
}

void MapWidget::PanBy(double dx, double dy)
{
    if (const Map* map = m_control.ActiveMap())
        MoveTo(Panned(map->View(), {dx, dy}));
}

void MapWidget::ShowRegion()
{
    MoveTo(RegionTarget(m_control.MapRegion(), size()));
}

void MapWidget::ShowWorld()
{
    MoveTo({{0.5, 0.45}, ZoomOf(width())});
}

// --- Painting

ScenePaint MapWidget::HowToPaint() const
{
    ScenePaint how;
    how.selection = m_selection;
    how.pinned = m_pinned;
    how.palette = palette();
    how.font = font();
    return how;
}

void MapWidget::paintEvent(QPaintEvent*)
{
    QElapsedTimer watch;
    watch.start();
    QPainter painter(this);
    const Map* map = m_control.ActiveMap();
    if (!map) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    ScenePaint how = HowToPaint();
    how.hovered = m_hovered;
    how.ratio = devicePixelRatioF();
    how.buttons = m_buttons->geometry();
    m_scene.Paint(painter, *map, map->View(), how);
    if (m_bKeyboardFocus) {
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    ++m_paints;
    m_lastPaint = watch.elapsed();
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
    m_scene.Paint(painter, *map, view, how);
    update(); // The scene is arranged for the window again.
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
    m_scene.Paint(painter, *map, view, how);
    painter.restore();
    update();
}

void MapWidget::resizeEvent(QResizeEvent*)
{
    m_buttons->move(width() - m_buttons->width() - kButtonMargin, kButtonMargin);
    Map* map = m_control.ActiveMap();
    if (!map)
        return;
    m_bOwnMove = true;
    map->SetSize(width(), height());
    m_bOwnMove = false;
    MoveTo({ToMercator(map->View().centre), map->View().zoom});
}

void MapWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace ruvenmark
