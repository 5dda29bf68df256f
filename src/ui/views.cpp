#include "ui/views.h"

#include "core/main_window.h"

namespace ruvenmark {

void ShowMapView(MainWindow& main)
{
    WindowState& window = main.window;
    if (window.rightView == RightView::Map && window.leftTree == LeftTree::Stations && window.bMapTicked)
        return;
    window.rightView = RightView::Map;
    window.leftTree = LeftTree::Stations;
    window.bMapTicked = true;
    window.bMessagesTicked = false;
    window.Changed.Raise();
}

} // namespace ruvenmark
