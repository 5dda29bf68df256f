#pragma once

#include "platform/geometry.h"

#include <QObject>
#include <QPointF>

#include <optional>

class QKeyEvent;
class QMouseEvent;
class QNativeGestureEvent;
class QWheelEvent;
class QWidget;

namespace ruvenmark {

class MapControl;
class MapMover;

// What the operator does on a widget with mouse, wheel, touch pad and keys: the view moves, the rest is told.
class MapInput : public QObject {
    Q_OBJECT

public:
    // Sees the widget's events before it does.
    MapInput(MapControl& control, MapMover& mover, QWidget& widget);

    bool IsDragging() const { return m_drag && m_drag->bMoving; }
    // The keyboard came here by its own keys, so it is shown where it is.
    bool IsKeyboardHere() const { return m_bKeyboardHere; }

signals:
    void PointerMoved(QPointF at);
    void PointerRested(QPointF at);
    void PointerLeft();
    void Picked(QPointF at);                          // A click that is not for the logic.
    void Clicked(Qt::MouseButton button, QPointF at); // Any click, after Picked.
    void DoubleClicked(QPointF at, bool bOut);        // Zooms in, or out.
    void DraggingChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Drag {
        QPointF press;
        MercatorPoint centre; // Of the view when the button went down.
        bool bMoving = false;
    };

    void Press(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Wheel(const QWheelEvent& event);
    bool Gesture(const QNativeGestureEvent& event);
    bool Key(const QKeyEvent& event);

    MapControl& m_control;
    MapMover& m_mover;
    QWidget& m_widget;
    std::optional<Drag> m_drag;
    bool m_bPinpointed = false; // The last click was for the logic.
    bool m_bKeyboardHere = false;
};

} // namespace ruvenmark
