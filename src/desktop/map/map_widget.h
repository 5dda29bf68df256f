#pragma once

#include "desktop/map/map_ground.h"
#include "desktop/map/map_scene.h"
#include "platform/event.h"
#include "platform/map_control.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

namespace ruvenmark {

class BaseMap;
class IconSet;
struct ViewTarget;
class ZoomButtons;

// The map window. What the operator does is painted at once; what reports do is gathered and painted a few times a
// second, however many there are.
class MapWidget : public QWidget {
    Q_OBJECT

public:
    // What is passed must outlive the widget; base may be null.
    MapWidget(MapControl& control, IconSet& icons, const BaseMap* base, QWidget* parent = nullptr);
    ~MapWidget() override;

    OnlineTiles& Tiles() { return m_ground.Tiles(); }
    const MapScene& Scene() const { return m_scene; }
    int Paints() const { return m_paints; }

    // What stands out. The widget changes it on clicks and tells; others may set it.
    const MapSelection& Selection() const { return m_selection; }
    void SetSelection(const MapSelection& selection);
    void PinBalloon(const Pushpin& pin);
    void CloseBalloon();
    std::optional<SlotRef> PinnedBalloon() const { return m_pinned; }
    std::optional<SlotRef> HoveredBalloon() const { return m_hovered; }

    void ZoomIn();
    void ZoomOut();
    void ZoomAbout(QPointF point, double levels);
    void PanBy(double dx, double dy); // Pixels that the view moves over the ground.
    void ShowRegion();                // The whole region of the map.
    void ShowWorld();

    // As on the screen, at any size, without what belongs to the pointer.
    QImage Picture(QSize size, qreal ratio);
    // For printers: what the screen shows lies wholly in `target`, as lines and letters.
    void PaintMap(QPainter& painter, const QRectF& target);

signals:
    void PointerMoved(int x, int y);
    void Clicked(Qt::MouseButton button, int x, int y); // The pointer may be the cross: then nothing is selected.
    void SelectionChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    struct Drag {
        QPointF press;
        MercatorPoint centre; // Of the view when the button went down.
        bool bMoving = false;
    };

    void ObserveMap();
    void MapChanged();
    void GatheredChange();
    void DropTheGone();
    void UpdatePointer();
    void UpdateButtons();

    void MoveTo(const ViewTarget& target);
    void Click(QPointF at);
    void ClickMarker(const MarkerItem& item);
    void Select(const MapSelection& selection);
    void Hover(QPointF at);
    const MarkerItem* MarkerAt(QPointF at);
    ScenePaint HowToPaint() const;

    MapControl& m_control;
    MapGround m_ground;
    MapScene m_scene;
    ZoomButtons* m_buttons;
    std::vector<Subscription> m_controlEvents, m_mapEvents;
    QTimer m_gather;
    MapSelection m_selection;
    std::optional<SlotRef> m_pinned, m_hovered;
    std::optional<Drag> m_drag;
    qint64 m_lastPaint = 0; // Milliseconds it took.
    int m_paints = 0;
    bool m_bOwnMove = false;    // The view changes because of this widget.
    bool m_bPinpointed = false; // The last click was for the logic.
    bool m_bKeyboardFocus = false;
};

} // namespace ruvenmark
