#include "core/views.h"

#include "core/window_state.h"

namespace ruvenmark {

void ShowMapView(WindowState& window)
{
    if (window.rightView == RightView::Map && window.leftTree == LeftTree::Stations && window.bMapTicked)
        return;
    window.rightView = RightView::Map;
    window.leftTree = LeftTree::Stations;
    window.bMapTicked = true;
    window.bMessagesTicked = false;
    window.Changed.Raise();
}

void ShowMessageView(WindowState& window, RightView list)
{
    window.rightView = list;
    window.leftTree = LeftTree::Messages;
    window.bMapTicked = false;
    window.bMessagesTicked = true;
    window.Changed.Raise();
}

} // namespace ruvenmark
