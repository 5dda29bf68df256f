#pragma once

#include "desktop/bars/entry_tool_bar.h"
#include "platform/event.h"

#include <QTimer>
#include <QWidget>

#include <vector>

namespace ruvenmark {

class DirectionsPane;
class LocationBar;
class MapWidget;

// mpCtrl with what the map control has around it: the four map tool bars and the directions pane.
class MapPane final : public QWidget {
public:
    // The map becomes a child of this widget.
    MapPane(MainWindow& main, const IconSet& icons, const EntryToolBar::Runner& run, MapWidget& map,
            QWidget* parent = nullptr);

    void RefreshStates();
    void RefreshIcons();

private:
    void FillStandardBar();
    void FillNavigationBar();
    void FillDrawingBar();
    template <typename Act>
    void AddNavigation(const char* iconName, const char* text, Act act);
    void AddMove(const char* iconName, const char* text, double right, double down);
    void ShowBars();
    void ObserveMap();
    void TakePointerBack();

    MainWindow& m_main;
    MapWidget& m_map;
    EntryToolBar* m_standard;
    EntryToolBar* m_navigation;
    EntryToolBar* m_drawing;
    LocationBar* m_location;
    DirectionsPane* m_directions;
    QAction* m_pointer = nullptr;
    QTimer m_viewTimer, m_contentTimer;
    std::vector<Subscription> m_controlEvents;
    std::vector<Subscription> m_mapEvents; // The map is one object from the first one on.
};

} // namespace ruvenmark
