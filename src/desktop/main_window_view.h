#pragma once

#include "desktop/menu_binder.h"
#include "desktop/window_placement.h"
#include "platform/event.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <string>
#include <vector>

class QShortcut;
class QStackedWidget;

namespace ruvenmark {

class BaseMap;
class HelpView;
class IByteStream;
class IconSet;
class MainToolBar;
class MapHint;
class MapPane;
class MapWidget;
class MessagePanes;
class Panes;
class StationDock;
class StatusBarView;
class TreeModel;
class TreeNode;
class TreeView;
struct MainWindow;

// The program's window over the state of the logic: it shows what stands there and passes on what the operator does.
class MainWindowView final : public QMainWindow {
    Q_OBJECT

public:
    // What is lent must outlive the window; base may be null.
    MainWindowView(MainWindow& main, IconSet& icons, const BaseMap* base);
    ~MainWindowView() override;

    MapWidget& Map() { return *m_map; }
    TreeView& StationTree() { return *m_tree; }
    // Expanded, and all above it.
    void ShowInTree(const TreeNode& node);

    // As the operator closes it, but with nobody there to answer: a map that was not saved is not saved.
    void CloseUnasked();

    // Runs a command of the menus. A load runs inside it.
    void Run(MenuEntry entry);
    void LoadFile(const std::string& path);
    // Packets, a map or tiles, as its content says.
    void OpenFile(const std::string& path);
    void LoadFile(IByteStream& bytes); // Opened before.

    void RefreshStates(); // Of menus, buttons and first steps, now instead of soon.

signals:
    void Ended(int status); // Closed, and all is saved that can be.

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeRightPane(const BaseMap* base);
    void ConnectMap();
    void ConnectTree();
    QWidget* MakeStationDock();
    void ShowFirstSteps();
    void OfferStations();
    void RunLogic(const std::function<void()>& work);
    void Observe();
    void ShowState();
    void RefreshIcons();
    void ShowTiles();
    void ShowMapLook();
    void ShowMarkerMenu(QPoint at); // A pixel of the map.
    void PopUp(QPoint place, const std::vector<MenuItem>& items);
    void PopUpFor(QPoint place, TreeNode* node); // Null: beside the nodes of the tree.
    void RunLoad(const std::function<void()>& load);
    void AfterCommand();
    bool MayEndLoad();

    MainWindow& m_main;
    IconSet& m_icons;
    MenuBinder m_menus;
    TreeModel* m_treeModel;
    TreeView* m_tree;
    MainToolBar* m_toolBar;
    StatusBarView* m_statusBar;
    QStackedWidget *m_left, *m_right;
    MapWidget* m_map = nullptr;
    MapPane* m_mapPane = nullptr;
    HelpView* m_help = nullptr;
    MessagePanes* m_messages = nullptr;
    MapHint* m_hint = nullptr;
    StationDock* m_stations = nullptr;
    bool m_bFirstSteps = false; // The hint tells them.
    Subscription m_viewTaken;   // While the hint offers a view.
    Panes* m_panes;
    WindowPlacement m_placement;
    QShortcut* m_escape; // While a click on the map is waited for.
    QTimer m_stateTimer, m_pointerTimer;
    int m_running = 0;           // Commands on the stack: a load lets others in.
    bool m_bAsking = false;      // Whether a load may be ended.
    bool m_bUnasked = false;     // Nobody is there to answer a box.
    bool m_bCloseWanted = false; // As soon as the load has ended.
    std::vector<Subscription> m_subscriptions;
};

} // namespace ruvenmark
