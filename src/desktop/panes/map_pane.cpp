#include "desktop/panes/map_pane.h"

#include "core/main_window.h"
#include "desktop/bars/location_bar.h"
#include "desktop/map/widget/map_widget.h"
#include "desktop/panes/directions_pane.h"
#include "map/pointer_tools.h"

#include <QAction>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

constexpr int kViewIntervalMs = 50;
constexpr int kContentIntervalMs = 500;
constexpr double kMoveShare = 0.25; // Of the map's width or height.

} // namespace

MapPane::MapPane(MainWindow& main, const IconSet& icons, const EntryToolBar::Runner& run, MapWidget& map,
                 QWidget* parent)
    : QWidget(parent), m_main(main), m_map(map),
      m_standard(new EntryToolBar(main, icons, run, QStringLiteral("Standard"), this)),
      m_navigation(new EntryToolBar(main, icons, run, QStringLiteral("Navigation"), this)),
      m_drawing(new EntryToolBar(main, icons, run, QStringLiteral("Drawing"), this)),
      m_location(new LocationBar(main, this)), m_directions(new DirectionsPane(main, icons, this))
{
    FillStandardBar();
    FillNavigationBar();
    FillDrawingBar();
    auto* bars = new QHBoxLayout;
    bars->addWidget(m_standard);
    bars->addWidget(m_navigation);
    bars->addWidget(m_drawing);
    bars->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bars);
    layout->addWidget(m_location);
    layout->addWidget(&map, 1);
    layout->addWidget(m_directions);
    setFocusProxy(&map);

    m_viewTimer.setSingleShot(true);
    m_viewTimer.setInterval(kViewIntervalMs);
    connect(&m_viewTimer, &QTimer::timeout, m_location, &LocationBar::Refresh);
    m_contentTimer.setSingleShot(true);
    m_contentTimer.setInterval(kContentIntervalMs);
    connect(&m_contentTimer, &QTimer::timeout, m_drawing, &EntryToolBar::RefreshStates);
    m_controlEvents = {main.mpCtrl.Replaced.Observe([this] { ObserveMap(); }),
                       main.mpCtrl.ControlChanged.Observe([this] { ShowBars(); })};
    ObserveMap();
    ShowBars();
}

void MapPane::RefreshStates()
{
    m_standard->RefreshStates();
    m_navigation->RefreshStates();
    m_drawing->RefreshStates();
}

void MapPane::RefreshIcons()
{
    m_standard->RefreshIcons();
    m_navigation->RefreshIcons();
    m_drawing->RefreshIcons();
    m_directions->RefreshIcons();
}

void MapPane::FillStandardBar()
{
    m_standard->setObjectName(QStringLiteral("mapToolBar1"));
    m_standard->AddEntry(MenuEntry::mnuImportStations, QStringLiteral("Load stations, or stop a load"));
    m_standard->AddEntry(MenuEntry::mnuFind, QStringLiteral("Find a place or station"));
    m_standard->AddEntry(MenuEntry::mnuDirections, QStringLiteral("Directions"));
    m_standard->AddEntry(MenuEntry::mnuCopyMap, QStringLiteral("Copy the map as a picture"));
    m_standard->AddEntry(MenuEntry::mnuToolsFilter, QStringLiteral("Filters"));
    m_standard->AddEntry(MenuEntry::mnuTrackedStations, QStringLiteral("Track list"));
}

void MapPane::FillNavigationBar()
{
    m_navigation->setObjectName(QStringLiteral("mapToolBar2"));
    AddNavigation("zoom-in", "Zoom in", [this] { m_map.Mover().ZoomBy(1); });
    AddNavigation("zoom-out", "Zoom out", [this] { m_map.Mover().ZoomBy(-1); });
    AddMove("pan-west", "Go west", -kMoveShare, 0);
    AddMove("pan-east", "Go east", kMoveShare, 0);
    AddMove("pan-north", "Go north", 0, -kMoveShare);
    AddMove("pan-south", "Go south", 0, kMoveShare);
    AddNavigation("fit-world", "Show the whole region", [this] { m_map.Mover().ShowRegion(); });
}

void MapPane::FillDrawingBar()
{
    m_drawing->setObjectName(QStringLiteral("mapToolBar3"));
    m_pointer = m_drawing->AddAction(QStringLiteral("pointer"), QStringLiteral("Select and move; ends a pinpoint"));
    m_pointer->setObjectName(QStringLiteral("pointer"));
    m_pointer->setCheckable(true);
    connect(m_pointer, &QAction::triggered, this, &MapPane::TakePointerBack);
    m_drawing->AddEntry(MenuEntry::mnuToolsShowTrackLine, QStringLiteral("Draw lines along tracks"));
    m_drawing->AddEntry(MenuEntry::mnuHideAllRangeCircles, QStringLiteral("Hide all range circles"));
    m_drawing->AddEntry(MenuEntry::mnuRemoveAllTracks, QStringLiteral("Remove all tracks"));
}

template <typename Act>
void MapPane::AddNavigation(const char* iconName, const char* text, Act act)
{
    QAction* action = m_navigation->AddAction(QString::fromLatin1(iconName), QString::fromLatin1(text));
    action->setObjectName(QString::fromLatin1(iconName));
    connect(action, &QAction::triggered, this, act);
}

void MapPane::AddMove(const char* iconName, const char* text, double right, double down)
{
    AddNavigation(iconName, text, [this, right, down] {
        m_map.Mover().PanBy({right * m_map.width(), down * m_map.height()});
    });
}

void MapPane::ShowBars()
{
    const MapControl& control = m_main.mpCtrl;
    m_standard->setVisible(control.ToolbarVisible(1));
    m_navigation->setVisible(control.ToolbarVisible(2));
    m_drawing->setVisible(control.ToolbarVisible(3));
    m_location->setVisible(control.ToolbarVisible(4));
    m_directions->setVisible(control.ItineraryVisible());
    m_pointer->setChecked(!IsPinPointing(m_main));
}

void MapPane::ObserveMap()
{
    Map* map = m_main.mpCtrl.ActiveMap();
    if (map && m_mapEvents.empty()) {
        m_mapEvents = {map->ViewChanged.Observe([this] {
                           if (!m_viewTimer.isActive())
                               m_viewTimer.start();
                       }),
                       map->Changed.Observe([this] {
                           if (!m_contentTimer.isActive())
                               m_contentTimer.start();
                       })};
    }
    m_location->Refresh();
}

// A click on the map is waited for no longer.
void MapPane::TakePointerBack()
{
    EndPinPoint(m_main);
    ShowBars();
}

} // namespace ruvenmark
