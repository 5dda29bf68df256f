#include "map/selection.h"

#include "core/main_window.h"

namespace ruvenmark {

SelectionKind KindOfSelection(const MainWindow& main)
{
    const Map* map = main.mpCtrl.ActiveMap();
    if (!map || main.window.rightView != RightView::Map)
        return SelectionKind::Nothing;
    if (const auto* pin = std::get_if<Pushpin>(&main.map.Selection))
        return map->Pins().Find(pin->Ref()) ? SelectionKind::Pushpin : SelectionKind::Nothing;
    if (const auto* shape = std::get_if<Shape>(&main.map.Selection))
        return map->Shapes().Find(shape->Ref()) ? SelectionKind::Shape : SelectionKind::Nothing;
    return SelectionKind::Nothing;
}

void SelectOnMap(MainWindow& main, const MapSelection& selection)
{
    if (main.map.Selection == selection)
        return;
    main.map.Selection = selection;
    main.map.SelectionChanged.Raise();
}

} // namespace ruvenmark
