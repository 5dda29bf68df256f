#include "desktop/map/widget/map_input.h"

#include "desktop/map/view/map_mover.h"
#include "platform/map_control.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kLevelsPerNotch = 0.5;
constexpr double kNotch = 120;  // Of a wheel, in eighths of a degree.
constexpr double kKeyStep = 80; // Pixels.

bool IsTab(const QFocusEvent& event)
{
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

} // namespace

MapInput::MapInput(MapControl& control, MapMover& mover, QWidget& widget)
    : m_control(control), m_mover(mover), m_widget(widget)
{
    widget.installEventFilter(this);
}

bool MapInput::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        Press(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::MouseMove:
        Move(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::MouseButtonRelease:
        Release(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::MouseButtonDblClick:
        DoubleClick(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::Wheel:
        Wheel(static_cast<QWheelEvent&>(*event));
        return true;
    case QEvent::NativeGesture:
        return Gesture(static_cast<QNativeGestureEvent&>(*event));
    case QEvent::KeyPress:
        return Key(static_cast<QKeyEvent&>(*event));
    case QEvent::ToolTip:
        emit PointerRested(static_cast<QHelpEvent&>(*event).pos());
        return true;
    case QEvent::Leave:
        emit PointerLeft();
        break;
    case QEvent::FocusIn:
        m_bKeyboardHere = IsTab(static_cast<QFocusEvent&>(*event));
        break;
    case QEvent::FocusOut:
        m_bKeyboardHere = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void MapInput::Press(const QMouseEvent& event)
{
    m_bKeyboardHere = false;
    const Map* map = m_control.ActiveMap();
    const bool bLeftOrMiddle = event.button() == Qt::LeftButton || event.button() == Qt::MiddleButton;
    if (map && bLeftOrMiddle && !m_drag)
        m_drag = Drag{event.position(), ToMercator(map->View().centre), false};
}

void MapInput::Move(const QMouseEvent& event)
{
    const QPointF at = event.position();
    if (m_drag && !m_drag->bMoving && (at - m_drag->press).manhattanLength() >= QApplication::startDragDistance()) {
        m_drag->bMoving = true;
        emit DraggingChanged();
    }
    const Map* map = m_control.ActiveMap();
    if (map && IsDragging()) {
        const QPointF moved = at - m_drag->press;
        const double world = map->View().WorldPixels();
        m_mover.MoveTo(
            {{m_drag->centre.x - moved.x() / world, m_drag->centre.y - moved.y() / world}, map->View().zoom});
    }
    emit PointerMoved(at);
}

void MapInput::Release(const QMouseEvent& event)
{
    const bool bMoved = IsDragging(), bPressed = m_drag.has_value();
    m_drag.reset();
    emit DraggingChanged();
    if (bMoved || (event.button() == Qt::LeftButton && !bPressed))
        return;
    m_bPinpointed = m_control.MousePointer() == kPointerCross;
    if (!m_bPinpointed && event.button() == Qt::LeftButton)
        emit Picked(event.position());
    emit Clicked(event.button(), event.position());
}

void MapInput::DoubleClick(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton && !m_bPinpointed)
        emit DoubleClicked(event.position(), event.modifiers().testFlag(Qt::ShiftModifier));
}

// Wheels with fine steps and touch pads send parts of a notch.
void MapInput::Wheel(const QWheelEvent& event)
{
    const double notches = event.angleDelta().y() / kNotch;
    if (notches != 0)
        m_mover.ZoomAbout(event.position(), notches * kLevelsPerNotch);
}

bool MapInput::Gesture(const QNativeGestureEvent& event)
{
    if (event.gestureType() != Qt::ZoomNativeGesture || event.value() <= -0.9)
        return false;
    m_mover.ZoomAbout(event.position(), std::log2(1 + event.value()));
    return true;
}

bool MapInput::Key(const QKeyEvent& event)
{
    const bool bPage = event.modifiers().testFlag(Qt::ShiftModifier);
    const double x = bPage ? m_widget.width() * 0.8 : kKeyStep, y = bPage ? m_widget.height() * 0.8 : kKeyStep;
    switch (event.key()) {
    case Qt::Key_Left:
        m_mover.PanBy({-x, 0});
        return true;
    case Qt::Key_Right:
        m_mover.PanBy({x, 0});
        return true;
    case Qt::Key_Up:
        m_mover.PanBy({0, -y});
        return true;
    case Qt::Key_Down:
        m_mover.PanBy({0, y});
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        m_mover.ZoomBy(1);
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        m_mover.ZoomBy(-1);
        return true;
    case Qt::Key_Home:
        m_mover.ShowRegion();
        return true;
    default:
        return false;
    }
}

} // namespace ruvenmark
