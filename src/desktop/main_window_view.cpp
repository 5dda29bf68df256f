#include "desktop/main_window_view.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "desktop/bars/main_tool_bar.h"
#include "desktop/bars/status_bar_view.h"
#include "desktop/icons/icon_set.h"
#include "desktop/map/tiles/tile_choice.h"
#include "desktop/map/widget/map_widget.h"
#include "desktop/named_control.h"
#include "desktop/panes/help_view.h"
#include "desktop/panes/map_hint.h"
#include "desktop/panes/map_pane.h"
#include "desktop/panes/message_panes.h"
#include "desktop/panes/panes.h"
#include "desktop/shown_text.h"
#include "desktop/stations/station_dock.h"
#include "desktop/tree/tree_model.h"
#include "desktop/tree/tree_view.h"
#include "lifecycle/stop.h"
#include "links/station_files.h"
#include "map/map_settings.h"
#include "map/pointer_tools.h"
#include "map/show_on_map.h"
#include "ui/layout.h"
#include "ui/station_tree_commands.h"
#include "ui/tree_keys.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStackedWidget>

namespace ruvenmark {

namespace {

constexpr int kStateIntervalMs = 100;
constexpr int kPointerIntervalMs = 40;

} // namespace

MainWindowView::MainWindowView(MainWindow& main, IconSet& icons, const BaseMap* base)
    : m_main(main), m_icons(icons), m_menus(main, icons, [this](MenuEntry entry) { Run(entry); }),
      m_treeModel(new TreeModel(main.tvStationList, icons, this)),
      m_tree(new TreeView(main.tvStationList, *m_treeModel, this)),
      m_toolBar(new MainToolBar(
          main, icons, [this](MenuEntry entry) { Run(entry); }, this)),
      m_statusBar(new StatusBarView(
          main, icons, [this](MenuEntry entry) { Run(entry); }, this)),
      m_left(new QStackedWidget(this)), m_right(new QStackedWidget(this)), m_panes(new Panes(main, this)),
      m_placement(main, *this), m_escape(new QShortcut(Qt::Key_Escape, this))
{
    setWindowIcon(icons.Program());
    setMinimumWidth(PixelsOfTwips(kMinWindowWidth));
    setAcceptDrops(true);
    NameControl(*m_tree, "tvStationList", QStringLiteral("Stations"));
    m_left->addWidget(m_tree);
    MakeRightPane(base);
    m_menus.Fill(*menuBar());
    m_panes->SetControls({m_toolBar, m_left, MakeStationDock(), m_statusBar});
    setCentralWidget(m_panes);
    ConnectMap();
    ConnectTree();
    m_stateTimer.setSingleShot(true);
    m_stateTimer.setInterval(kStateIntervalMs);
    connect(&m_stateTimer, &QTimer::timeout, this, &MainWindowView::RefreshStates);
    m_pointerTimer.setSingleShot(true);
    m_pointerTimer.setInterval(kPointerIntervalMs);
    connect(&m_pointerTimer, &QTimer::timeout, this,
            [this] { m_toolBar->ShowCoordinates(ForDisplay(m_main.sbStatusBar.Coordinates())); });
    Observe();
    RefreshIcons();
    RefreshStates();
    ShowState();
}

// The tree loses the keys when it is taken apart: what it would tell then has no one to hear it.
MainWindowView::~MainWindowView()
{
    m_tree->disconnect(this);
}

void MainWindowView::MakeRightPane(const BaseMap* base)
{
    m_map = new MapWidget(m_main.mpCtrl, m_icons, base, m_main.map.Selection, this);
    m_map->setObjectName(QStringLiteral("mpCtrl"));
    m_map->setAccessibleName(QStringLiteral("Map"));
    m_hint = new MapHint(*m_map);
    m_mapPane = new MapPane(
        m_main, m_icons, [this](MenuEntry entry) { Run(entry); }, *m_map, m_right);
    m_help = new HelpView(m_main, m_right);
    m_right->addWidget(m_mapPane);
    m_right->addWidget(m_help);
    m_messages = new MessagePanes(m_main, m_icons,
                                  {[this](MenuEntry entry) { Run(entry); },
                                   [this](QPoint place, const std::vector<MenuItem>& items) { PopUp(place, items); }},
                                  *m_left, *m_right);
}

void MainWindowView::ConnectMap()
{
    connect(m_map, &MapWidget::PointerMoved, this, [this](int x, int y) { mpCtrl_MouseMove(m_main, x, y); });
    connect(m_map, &MapWidget::Clicked, this, [this](Qt::MouseButton button, int x, int y) {
        if (button == Qt::LeftButton)
            mpCtrl_Click(m_main, x, y);
        else if (button == Qt::RightButton && !IsPinPointing(m_main))
            ShowMarkerMenu({x, y});
    });
    connect(m_map, &MapWidget::MenuWanted, this, &MainWindowView::ShowMarkerMenu);
    connect(m_map, &MapWidget::SelectionWanted, this, [this](const MapSelection& selection) {
        if (const auto* pin = std::get_if<Pushpin>(&selection))
            Attempt(m_main.abandoned, "SelectionWanted", [&] { PickOut(m_main, *pin); });
        else
            SelectOnMap(m_main, selection);
    });
    connect(m_map, &MapWidget::ShowWanted, this,
            [this](const Pushpin& pin) { Attempt(m_main.abandoned, "ShowWanted", [&] { ShowOnMap(m_main, pin); }); });
    m_map->SetClock([this] { return m_main.services.clock.UnixSeconds(); });
    m_escape->setEnabled(false);
    connect(m_escape, &QShortcut::activated, this, [this] { EndPinPoint(m_main); });
    connect(m_toolBar, &MainToolBar::CoordinatesClicked, this, [this] { ChangeCoordinateForm(m_main); });
    connect(&m_map->Tiles(), &MapTiles::ProblemFound, this, [this](const QString& problem) {
        AttemptAloud(m_main, "The tiles cannot be used", [&] { throw Failure(problem.toStdString()); });
    });
}

void MainWindowView::ConnectTree()
{
    connect(m_tree, &TreeView::MenuWanted, this, [this](TreeNode* node, QPoint place) { PopUpFor(place, node); });
    connect(m_tree, &TreeView::ShowWanted, this, [this] { RunLogic([this] { ShowSelectedNode(m_main); }); });
    connect(m_tree, &TreeView::FocusMoved, this, [this](bool bHere) {
        m_main.window.bTreeFocus = bHere;
        m_stateTimer.start();
    });
    connect(m_tree, &TreeView::NodeExpanded, this, [this](TreeNode* node) { tvStationList_Expand(m_main, *node); });
}

void MainWindowView::Observe()
{
    const auto refreshLater = [this] {
        if (!m_stateTimer.isActive())
            m_stateTimer.start();
    };
    m_subscriptions = {
        m_main.window.Changed.Observe([this, refreshLater] {
            ShowState();
            refreshLater();
        }),
        m_main.window.CloseWanted.Observe([this] { close(); }),
        m_main.mpCtrl.Replaced.Observe(refreshLater),
        m_main.mpCtrl.ControlChanged.Observe([this, refreshLater] {
            m_escape->setEnabled(IsPinPointing(m_main));
            ShowMapLook();
            refreshLater();
        }),
        m_main.sbStatusBar.Changed.Observe([this] {
            if (!m_pointerTimer.isActive())
                m_pointerTimer.start();
        }),
        m_main.map.DirectionsChanged.Observe([this, refreshLater] {
            ShowMapLook();
            refreshLater();
        }),
        m_main.map.LookChanged.Observe([this] { ShowMapLook(); }),
        m_main.tvStationList.SelectionChanged.Observe([this] { tvStationList_Select(m_main); }),
        m_main.map.TilesChanged.Observe([this] { ShowTiles(); }),
        m_main.links.LoadEnded.Observe([this] { OfferStations(); }),
        // A flag's cost while nothing of the first steps shows.
        m_main.tvStationList.Inserted.Observe([this](const TreeNode&) {
            if (m_bFirstSteps)
                ShowFirstSteps();
        }),
        m_main.map.SelectionChanged.Observe([this, refreshLater] {
            m_map->FollowSelection();
            refreshLater();
        }),
    };
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, refreshLater);
}

void MainWindowView::ShowState()
{
    const WindowState& window = m_main.window;
    setWindowTitle(window.caption.empty() ? QStringLiteral("Ruvenmark") : ForDisplay(window.caption));
    if (window.rightView == RightView::Web)
        m_help->Show();
    QWidget* other = window.rightView == RightView::Web ? static_cast<QWidget*>(m_help) : m_mapPane;
    QWidget* list = m_messages->List(window.rightView);
    m_right->setCurrentWidget(list ? list : other);
    m_left->setCurrentWidget(window.leftTree == LeftTree::Messages ? m_messages->Boxes() : m_tree);
    for (QStackedWidget* stack : {m_left, m_right})
        stack->setFocusProxy(stack->currentWidget());
    m_stations->ApplyState();
    m_placement.Apply();
    m_panes->ApplyLayout();
}

void MainWindowView::RefreshStates()
{
    ShowFirstSteps();
    m_toolBar->RefreshStates();
    m_mapPane->RefreshStates();
}

void MainWindowView::RefreshIcons()
{
    m_menus.RefreshIcons(palette());
    m_toolBar->RefreshIcons();
    m_mapPane->RefreshIcons();
}

void MainWindowView::ShowTiles()
{
    m_map->Tiles().Choose(TileChoiceOf(m_main.map.tiles));
}

void MainWindowView::ShowMapLook()
{
    const auto& [from, to] = m_main.map.directions;
    const bool bMeasured = m_main.mpCtrl.ItineraryVisible() && from && to;
    m_map->SetDirections(bMeasured ? std::optional(LineEnds{from->point, to->point}) : std::nullopt);
    m_map->SetFadeAfter(m_main.map.iFadeAfter);
}

// A marker's menu is that of its node.
void MainWindowView::ShowMarkerMenu(QPoint at)
{
    const auto pin = m_map->MarkerFor(at);
    if (!pin)
        return;
    Attempt(m_main.abandoned, "ShowMarkerMenu", [&] {
        SelectOnMap(m_main, *pin);
        if (TreeNode* node = NodeOfMarker(m_main, *pin))
            PopUpFor(m_map->mapToGlobal(at), node);
    });
}

void MainWindowView::PopUp(QPoint place, const std::vector<MenuItem>& items)
{
    QMenu* menu = m_menus.MakePopup(items, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(place);
}

void MainWindowView::PopUpFor(QPoint place, TreeNode* node)
{
    if (const auto popup = tvStationList_MouseUp(m_main, kRightButton, node))
        PopUp(place, popup->items);
}

void MainWindowView::ShowInTree(const TreeNode& node)
{
    m_treeModel->Flush();
    m_tree->expand(m_treeModel->IndexOf(&node));
}

void MainWindowView::Run(MenuEntry entry)
{
    RunLogic([&] { RunMenuEntry(m_main, entry); });
}

void MainWindowView::RunLogic(const std::function<void()>& work)
{
    ++m_running;
    work();
    --m_running;
    AfterCommand();
}

void MainWindowView::LoadFile(const std::string& path)
{
    RunLoad([&] { LoadStationFile(m_main, path); });
}

void MainWindowView::LoadFile(IByteStream& bytes)
{
    RunLoad([&] { LoadStationFile(m_main, bytes); });
}

void MainWindowView::RunLoad(const std::function<void()>& load)
{
    if (!m_main.links.FileLoading)
        RunLogic(load);
}

void MainWindowView::AfterCommand()
{
    m_stateTimer.start();
    if (m_bCloseWanted && m_running == 0)
        close();
}

void MainWindowView::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_mapPane)
        RefreshIcons();
    if (event->type() == QEvent::WindowStateChange) {
        m_main.window.bFullScreen = isFullScreen();
        m_placement.Keep();
    }
}

// Whatever box or dialog is open is cancelled first, so that the commands below it come to their end.
void MainWindowView::CloseUnasked()
{
    m_bUnasked = true;
    QWidget* box = QApplication::activePopupWidget();
    if (!box)
        box = QApplication::activeModalWidget();
    if (!box) {
        close();
        return;
    }
    box->close();
    QTimer::singleShot(0, this, &MainWindowView::CloseUnasked);
}

// A command that stands on the stack below, such as a load, is ended first, and the window closes when it is gone. A
// load goes on unless the operator wants it to end.
void MainWindowView::closeEvent(QCloseEvent* event)
{
    if (m_running > 0) {
        if (m_main.links.FileLoading && !m_bUnasked && !m_bCloseWanted && !MayEndLoad()) {
            event->ignore();
            return;
        }
        m_main.links.FileLoading = false;
        m_bCloseWanted = true;
        event->ignore();
        return;
    }
    m_bCloseWanted = false;
    m_placement.Keep();
    const StopResult result = StopMainWindow(m_main, m_bUnasked ? MayAsk::No : MayAsk::Yes);
    event->setAccepted(result != StopResult::GoesOn);
    if (event->isAccepted())
        emit Ended(result == StopResult::Stopped ? 0 : 1);
    else if (m_bUnasked) // The end was ordered while the question stood.
        QTimer::singleShot(0, this, &QWidget::close);
}

// The load goes on meanwhile; it may have come to its end, or the end of the program may be ordered, by the answer.
bool MainWindowView::MayEndLoad()
{
    if (m_bAsking)
        return false;
    m_bAsking = true;
    const bool bYes = m_main.services.prompts.AskYesNo("A file is being loaded. Do you want to stop it and close?");
    m_bAsking = false;
    return bYes || m_bUnasked;
}

void MainWindowView::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    m_placement.Keep();
}

void MainWindowView::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_placement.Keep();
}

} // namespace ruvenmark
