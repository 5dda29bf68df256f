// What the operator does on the map with mouse, wheel and keys.
#include "desktop/map/map_widget.h"
#include "desktop/map/view_moves.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kLevelsPerNotch = 0.5;
constexpr double kNotch = 120;  // Of a wheel, in eighths of a degree.
constexpr double kKeyStep = 80; // Pixels.

} // namespace

void MapWidget::mousePressEvent(QMouseEvent* event)
{
    m_bKeyboardFocus = false;
    const Map* map = m_control.ActiveMap();
    const bool bLeftOrMiddle = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    if (map && bLeftOrMiddle && !m_drag)
        m_drag = Drag{event->position(), ToMercator(map->View().centre), false};
    event->accept();
}

void MapWidget::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    if (m_drag && !m_drag->bMoving && (at - m_drag->press).manhattanLength() >= QApplication::startDragDistance()) {
        m_drag->bMoving = true;
        UpdatePointer();
    }
    const Map* map = m_control.ActiveMap();
    if (map && m_drag && m_drag->bMoving) {
        const QPointF moved = at - m_drag->press;
        const double world = map->View().WorldPixels();
        MoveTo({{m_drag->centre.x - moved.x() / world, m_drag->centre.y - moved.y() / world}, map->View().zoom});
    } else if (m_hovered) {
        Hover(at);
    }
    emit PointerMoved(static_cast<int>(std::lround(at.x())), static_cast<int>(std::lround(at.y())));
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const bool bMoved = m_drag && m_drag->bMoving;
    const bool bPressed = m_drag.has_value();
    m_drag.reset();
    UpdatePointer();
    if (bMoved || (event->button() == Qt::LeftButton && !bPressed))
        return;
    const bool bCross = m_control.MousePointer() == kPointerCross;
    m_bPinpointed = bCross;
    if (!bCross && event->button() == Qt::LeftButton)
        Click(event->position());
    const QPoint at = event->position().toPoint();
    emit Clicked(event->button(), at.x(), at.y());
}

void MapWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_bPinpointed)
        return;
    ZoomAbout(event->position(), event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
}

// Wheels with fine steps and touch pads send parts of a notch.
void MapWidget::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / kNotch;
    if (notches != 0)
        ZoomAbout(event->position(), notches * kLevelsPerNotch);
    event->accept();
}

bool MapWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        Hover(static_cast<QHelpEvent*>(event)->pos());
        return true;
    }
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture && gesture->value() > -0.9) {
            ZoomAbout(gesture->position(), std::log2(1 + gesture->value()));
            return true;
        }
    }
    return QWidget::event(event);
}

void MapWidget::keyPressEvent(QKeyEvent* event)
{
    const bool bPage = event->modifiers().testFlag(Qt::ShiftModifier);
    const double x = bPage ? width() * 0.8 : kKeyStep, y = bPage ? height() * 0.8 : kKeyStep;
    switch (event->key()) {
    case Qt::Key_Left:
        return PanBy(-x, 0);
    case Qt::Key_Right:
        return PanBy(x, 0);
    case Qt::Key_Up:
        return PanBy(0, -y);
    case Qt::Key_Down:
        return PanBy(0, y);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return ZoomIn();
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        return ZoomOut();
    case Qt::Key_Home:
        return ShowRegion();
    case Qt::Key_Escape:
        if (m_pinned)
            return CloseBalloon();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void MapWidget::leaveEvent(QEvent*)
{
    m_hovered.reset();
    update();
}

void MapWidget::focusInEvent(QFocusEvent* event)
{
    m_bKeyboardFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void MapWidget::focusOutEvent(QFocusEvent*)
{
    m_bKeyboardFocus = false;
    update();
}

} // namespace ruvenmark
