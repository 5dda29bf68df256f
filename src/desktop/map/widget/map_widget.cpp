#include "desktop/map/widget/map_widget.h"

#include "desktop/icons/icon_set.h"
#include "desktop/map/widget/zoom_buttons.h"
#include "platform/map_model.h"

#include <QContextMenuEvent>
#include <QDateTime>
#include <QEvent>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr qint64 kGatherMs = 45;         // What reports do is painted so soon where little was painted before,
constexpr qint64 kShare = 300;           // else so seldom that it takes no more than this part of a processor,
constexpr qint64 kLongestGatherMs = 500; // but so often in any case.
constexpr int kButtonMargin = 12;
constexpr int kAgeMilliseconds = 20000; // Ages are told in minutes.

} // namespace

MapWidget::MapWidget(MapControl& control, IconSet& icons, const BaseMap* base, const MapSelection& selection,
                     QWidget* parent)
    : QWidget(parent), m_control(control), m_selection(selection), m_ground(base), m_scene(icons, m_ground),
      m_mover(control), m_input(control, m_mover, *this), m_picker(control, m_scene, m_balloons, selection),
      m_buttons(new ZoomButtons(icons, this)), m_clock(QDateTime::currentSecsSinceEpoch),
      m_heap(new HeapList(
          control, icons, [this] { return m_clock(); }, this))
{
    setObjectName(QStringLiteral("mpCtrl"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(120, 90);
    setAccessibleName(QStringLiteral("Map"));
    setAccessibleDescription(QStringLiteral(
        "Arrow keys move the map, plus and minus zoom, Home shows the whole region, Escape closes balloon and list."));
    m_gather.setSingleShot(true);
    connect(&m_gather, &QTimer::timeout, this, &MapWidget::GatheredChange);
    connect(&m_ground, &MapGround::Changed, this, qOverload<>(&QWidget::update));
    connect(&m_scene.KeptShapes(), &ShapeLayer::Changed, this, qOverload<>(&QWidget::update));
    connect(m_buttons, &ZoomButtons::ZoomIn, this, [this] { m_mover.ZoomBy(1); });
    connect(m_buttons, &ZoomButtons::ZoomOut, this, [this] { m_mover.ZoomBy(-1); });
    connect(m_heap, &HeapList::Chosen, this, [this](SlotRef ref) {
        Map& map = m_control.RequireMap();
        if (map.Pins().Find(ref))
            emit ShowWanted(map.PinAt(ref.slot));
    });
    m_ageTimer.setInterval(kAgeMilliseconds);
    connect(&m_ageTimer, &QTimer::timeout, this, &MapWidget::RefreshAges);
    m_ageTimer.start();
    ConnectInput();
    m_controlEvents.push_back(m_control.Replaced.Observe([this] { ObserveMap(); }));
    m_controlEvents.push_back(m_control.ControlChanged.Observe([this] { UpdatePointer(); }));
    ObserveMap();
    UpdatePointer();
}

MapWidget::~MapWidget() = default;

void MapWidget::ConnectInput()
{
    connect(&m_input, &MapInput::PointerMoved, this, [this](QPointF at) {
        if (m_balloons.Hovered() && !m_input.IsDragging())
            Hover(at);
        m_pointer = at;
        TellPointer();
    });
    connect(&m_input, &MapInput::PointerRested, this, &MapWidget::Hover);
    connect(&m_input, &MapInput::PointerLeft, this, [this] {
        m_balloons.Hover(std::nullopt);
        m_pointer.reset();
        update();
    });
    connect(&m_input, &MapInput::DoubleClicked, this, &MapWidget::ZoomAt);
    connect(&m_input, &MapInput::Picked, this, &MapWidget::Click);
    connect(&m_input, &MapInput::Clicked, this, [this](Qt::MouseButton button, QPointF at) {
        const QPoint pixel = at.toPoint();
        emit Clicked(button, pixel.x(), pixel.y());
    });
    connect(&m_input, &MapInput::DraggingChanged, this, &MapWidget::UpdatePointer);
}

void MapWidget::ObserveMap()
{
    m_mapEvents.clear();
    m_heap->Close();
    m_scene.Forget();
    Map* map = m_control.ActiveMap();
    if (!map)
        return;
    m_mapEvents.push_back(map->Changed.Observe([this] { MapChanged(); }));
    m_mapEvents.push_back(map->ViewChanged.Observe([this] { ViewChanged(); }));
    map->SetSize(width(), height());
    RefreshParts();
    update(); // Not at once: whoever replaces a map is still at it.
}

// Called for every report: nothing but a look at a timer.
void MapWidget::MapChanged()
{
    if (m_gather.isActive())
        return;
    const qint64 since = m_sincePaint.isValid() ? m_sincePaint.elapsed() : 0;
    const qint64 pause = std::min(kShare * m_lastPaintNs / 1'000'000, kLongestGatherMs);
    m_gather.start(static_cast<int>(std::max({kGatherMs, pause - since, 4 * m_lastPaintNs / 1'000'000})));
}

void MapWidget::TellPointer()
{
    if (m_pointer)
        emit PointerMoved(static_cast<int>(std::lround(m_pointer->x())), static_cast<int>(std::lround(m_pointer->y())));
}

void MapWidget::ViewChanged()
{
    TellPointer(); // Another place lies under it.
    if (!m_mover.IsMoving())
        return MapChanged();
    m_balloons.Hover(std::nullopt);
    UpdateButtons();
    update();
}

void MapWidget::RefreshAges()
{
    m_heap->Refresh();
    if (m_fadeAfter > 0 || m_balloons.Pinned())
        update();
}

void MapWidget::SetFadeAfter(std::int32_t minutes)
{
    m_fadeAfter = minutes;
    update();
}

void MapWidget::FollowSelection()
{
    if (const auto* pin = std::get_if<Pushpin>(&m_selection); pin && m_balloons.Pinned())
        m_balloons.Pin(pin->Ref());
    update();
}

void MapWidget::SetDirections(const std::optional<LineEnds>& ends)
{
    m_directions = ends;
    update();
}

void MapWidget::RefreshParts()
{
    DropTheGone();
    UpdateButtons();
    m_heap->Refresh();
}

void MapWidget::DropTheGone()
{
    const Map* map = m_control.ActiveMap();
    m_balloons.DropTheGone(map);
    const bool bSelected = !std::holds_alternative<std::monostate>(m_selection);
    if (bSelected &&
        !(map && (SelectedIn<Pushpin>(map->Pins(), m_selection) || SelectedIn<Shape>(map->Shapes(), m_selection))))
        emit SelectionWanted({});
}

void MapWidget::UpdatePointer()
{
    if (m_control.MousePointer() == kPointerWait)
        setCursor(Qt::WaitCursor);
    else if (m_input.IsDragging())
        setCursor(Qt::ClosedHandCursor);
    else
        setCursor(m_control.MousePointer() == kPointerCross ? Qt::CrossCursor : Qt::ArrowCursor);
}

void MapWidget::UpdateButtons()
{
    const Map* map = m_control.ActiveMap();
    m_buttons->SetEnabled(map && map->View().zoom < kMaxZoom, map && map->View().zoom > LeastZoom(height()));
}

void MapWidget::Click(QPointF at)
{
    Picked picked = m_picker.Click(at);
    if (picked.heap.empty())
        m_heap->Close();
    else
        m_heap->Open(std::move(picked.heap), at);
    if (picked.selection && *picked.selection != m_selection)
        emit SelectionWanted(*picked.selection);
    update();
}

// Not on a marker or a balloon: two quick clicks there are one.
void MapWidget::ZoomAt(QPointF at, bool bOut)
{
    if (m_picker.IsGround(at))
        m_mover.ZoomAbout(at, bOut ? -1 : 1);
}

std::optional<Pushpin> MapWidget::MarkerFor(QPoint at)
{
    std::vector<SlotRef> markers = m_picker.MarkersAt(at);
    if (markers.size() == 1)
        return m_control.RequireMap().PinAt(markers.front().slot);
    if (!markers.empty())
        m_heap->Open(std::move(markers), at);
    return std::nullopt;
}

void MapWidget::Hover(QPointF at)
{
    if (m_picker.Rest(at))
        update();
}

void MapWidget::resizeEvent(QResizeEvent*)
{
    m_buttons->move(width() - m_buttons->width() - kButtonMargin, kButtonMargin);
    m_mover.Resize(size());
    m_heap->KeepInside();
}

void MapWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        update();
    QWidget::changeEvent(event);
}

// By mouse it comes as a click.
void MapWidget::contextMenuEvent(QContextMenuEvent* event)
{
    const Map* map = m_control.ActiveMap();
    const auto selected = map ? SelectedIn<Pushpin>(map->Pins(), m_selection) : std::nullopt;
    if (event->reason() != QContextMenuEvent::Keyboard || !selected)
        return;
    const PixelPoint at = ToPixel(map->View(), map->Pins().At(*selected)->point);
    emit MenuWanted(QPointF(at.x, at.y).toPoint());
}

void MapWidget::keyPressEvent(QKeyEvent* event)
{
    const bool bOpen = m_heap->isVisible() || m_balloons.Pinned();
    if (event->key() != Qt::Key_Escape || !bOpen)
        return QWidget::keyPressEvent(event);
    m_heap->Close();
    m_balloons.Close();
    update();
}

} // namespace ruvenmark
