#pragma once

#include "desktop/map/balloons/balloons.h"
#include "desktop/map/heap/heap_list.h"
#include "desktop/map/scene/map_ground.h"
#include "desktop/map/scene/map_scene.h"
#include "desktop/map/view/map_mover.h"
#include "desktop/map/widget/map_input.h"
#include "desktop/map/widget/map_picker.h"
#include "platform/event.h"
#include "platform/map_control.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <optional>
#include <utility>
#include <vector>

namespace ruvenmark {

class BaseMap;
class IconSet;
class ZoomButtons;

// The map window. What the operator does is painted at once; what reports do is gathered and painted a few times a
// second, however many there are.
class MapWidget : public QWidget {
    Q_OBJECT

public:
    // What is passed must outlive the widget; base may be null. The selection is the logic's: it is read at each paint,
    // and changed by whoever hears SelectionWanted. Call FollowSelection when it has changed.
    MapWidget(MapControl& control, IconSet& icons, const BaseMap* base, const MapSelection& selection,
              QWidget* parent = nullptr);
    ~MapWidget() override;

    MapTiles& Tiles() { return m_ground.Tiles(); }
    const MapScene& Scene() const { return m_scene; }
    const Balloons& OpenBalloons() const { return m_balloons; }
    MapMover& Mover() { return m_mover; }
    // Whether the last painting showed everything there is to show.
    bool IsReady() const
    {
        return m_ground.IsReady() && m_scene.KeptShapes().IsReady() && !m_gather.isActive() && !m_mover.IsMoving();
    }
    int Paints() const { return m_paints; }
    void FollowSelection();                          // An open balloon too.
    bool IsLastPaintPart() const { return m_bPart; } // Only places that had changed were painted.

    // Seconds since 1970, for ages; the machine's own clock at first.
    void SetClock(HeapList::Clock clock) { m_clock = std::move(clock); }
    void SetFadeAfter(std::int32_t minutes); // 0: never.
    // What the directions measure is drawn; nothing: no line.
    void SetDirections(const std::optional<LineEnds>& ends);
    // The marker under a pixel; where several stand under one picture their list opens instead.
    std::optional<Pushpin> MarkerFor(QPoint at);

    // As on the screen, at any size, without what belongs to the pointer.
    QImage Picture(QSize size, qreal ratio);
    // For printers: what the screen shows lies wholly in `target`, as lines and letters.
    void PaintMap(QPainter& painter, const QRectF& target);

signals:
    void PointerMoved(int x, int y);
    void Clicked(Qt::MouseButton button, int x, int y); // The pointer may be the cross: then nothing is selected.
    void SelectionWanted(const ruvenmark::MapSelection& selection);
    void ShowWanted(const ruvenmark::Pushpin& pin); // Chosen from a list of several.
    void MenuWanted(QPoint at);                     // By a key, for the selected marker.

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectInput();
    void ObserveMap();
    void MapChanged();
    void ViewChanged();
    void GatheredChange();
    void RefreshParts();
    void DropTheGone();
    void UpdatePointer();
    void UpdateButtons();
    void Click(QPointF at);
    void ZoomAt(QPointF at, bool bOut);
    void TellPointer();
    void RefreshAges();
    void Hover(QPointF at);
    ScenePaint HowToPaint() const;
    ScenePaint OnScreen() const;
    std::optional<QRegion> Lay(const Map& map);
    void PaintStill(QPainter& painter, const MapView& view, const ScenePaint& how);

    MapControl& m_control;
    const MapSelection& m_selection;
    MapGround m_ground;
    MapScene m_scene;
    Balloons m_balloons;
    MapMover m_mover;
    MapInput m_input;
    MapPicker m_picker;
    ZoomButtons* m_buttons;
    HeapList::Clock m_clock;
    HeapList* m_heap;
    std::optional<QPointF> m_pointer; // While it is over the map.
    std::optional<LineEnds> m_directions;
    std::int32_t m_fadeAfter = 0;
    QTimer m_ageTimer;
    std::vector<Subscription> m_controlEvents, m_mapEvents;
    QTimer m_gather;
    QElapsedTimer m_sincePaint;
    qint64 m_layNs = 0, m_drawNs = 0, m_lastPaintNs = 0; // Of its work.
    bool m_bLaid = false;                                // The scene was laid for the map as it is at this moment.
    int m_paints = 0;
    bool m_bPart = false;
};

} // namespace ruvenmark
