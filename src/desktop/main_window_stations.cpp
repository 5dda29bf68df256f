// What the window does for stations: their list under the map, the hints on an empty map and behind a load, and files
// that are dropped on it.

#include "core/main_window.h"
#include "desktop/data_path.h"
#include "desktop/main_window_view.h"
#include "desktop/panes/map_hint.h"
#include "desktop/shown_text.h"
#include "desktop/stations/station_dock.h"
#include "links/load_summary.h"
#include "map/show_on_map.h"
#include "ui/first_steps.h"
#include "ui/opened_file.h"
#include "ui/station_tree_commands.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QStackedWidget>
#include <QUrl>

namespace ruvenmark {

namespace {

// The one local file that a drag holds; empty for any other drag.
QString DraggedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
}

} // namespace

// What stands in the right pane, with room for the dock around it.
QWidget* MainWindowView::MakeStationDock()
{
    auto* area = new QMainWindow(this, Qt::Widget);
    area->setContextMenuPolicy(Qt::PreventContextMenu);
    area->setCentralWidget(m_right);
    area->setFocusProxy(m_right);
    m_stations = new StationDock(m_main, m_icons,
                                 {[this](Channel channel, const std::string& call) {
                                      RunLogic([&] { ShowListedStation(m_main, channel, call); });
                                  },
                                  [this](Channel channel, const std::string& call) {
                                      RunLogic([&] { RemoveListedStation(m_main, channel, call); });
                                  },
                                  [this](Channel channel, const std::string& call, QPoint place) {
                                      if (TreeNode* node = NodeOfStation(m_main, channel, call))
                                          PopUpFor(place, node);
                                  }},
                                 *area);
    return area;
}

// Gone with the first report, and with whatever else puts something on the map.
void MainWindowView::ShowFirstSteps()
{
    const bool bWanted = WantsFirstSteps(m_main);
    if (bWanted == m_bFirstSteps)
        return;
    m_bFirstSteps = bWanted;
    if (!bWanted) {
        m_hint->hide();
        return;
    }
    // What was chosen takes the offer away; cancelled, it comes again.
    const auto offer = [this](auto&& work) {
        return [this, work] {
            m_bFirstSteps = false;
            work();
            m_stateTimer.start();
        };
    };
    MapHint::Actions actions = {
        {QStringLiteral("Load a packet file…"), offer([this] { Run(MenuEntry::mnuImportStations); })}};
    if (const QString sample = DataPath(QStringLiteral("samples/day.log")); !sample.isEmpty())
        actions.emplace_back(QStringLiteral("Try the sample"),
                             offer([this, path = QFile::encodeName(sample).toStdString()] { LoadFile(path); }));
    actions.emplace_back(QStringLiteral("Connect…"), offer([this] {
                             PopUp(m_hint->mapToGlobal(m_hint->rect().bottomLeft()),
                                   MenuItems(m_main, Menu::Communication));
                         }));
    m_viewTaken.reset();
    m_hint->Show({}, actions);
}

// Whoever goes somewhere else needs no offer any more.
void MainWindowView::OfferStations()
{
    constexpr int kOfferMs = 20000;
    if (!HasPlacedStations(m_main))
        return;
    m_hint->Show(ForDisplay(LoadSummary(m_main)),
                 {{QStringLiteral("Zoom to stations"), [this] { Run(MenuEntry::mnuZoomToStations); }}});
    m_hint->HideAfter(kOfferMs);
    ruvenmark::Map& map = m_main.mpCtrl.RequireMap();
    m_viewTaken = map.ViewChanged.Observe([this, &map, offered = map.View()] {
        if (map.View().centre != offered.centre || map.View().zoom != offered.zoom)
            m_hint->hide();
    });
}

void MainWindowView::OpenFile(const std::string& path)
{
    const FileContent content = ContentOf(m_main.services.files, path);
    if (content == FileContent::Packets)
        LoadFile(path);
    else
        RunLogic([&] { OpenContent(m_main, content, path); });
}

// The file is read, never moved: whoever it was dragged from must not delete it behind the drop.
void MainWindowView::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_main.links.FileLoading || DraggedFile(*event->mimeData()).isEmpty() ||
        !event->possibleActions().testFlag(Qt::CopyAction))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void MainWindowView::dropEvent(QDropEvent* event)
{
    const QString file = DraggedFile(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program that the file was dragged from must not wait for the load.
    QTimer::singleShot(0, this, [this, path = QFile::encodeName(file).toStdString()] { OpenFile(path); });
}

} // namespace ruvenmark
