#include "map/edit_commands.h"

#include "core/main_window.h"
#include "map/directions.h"
#include "map/selection.h"
#include "platform/map_document.h"

#include <optional>
#include <string>

namespace ruvenmark {

namespace {

constexpr std::size_t kLongestPaste = 1 << 20; // Bytes; what is longer is not looked into.

// False when nothing is selected.
bool CopySelection(MainWindow& main)
{
    const SelectionKind kind = KindOfSelection(main);
    if (kind == SelectionKind::Nothing)
        return false;
    const Map& map = main.mpCtrl.RequireMap();
    MapDocument document = main.mpCtrl.EmptyDocument();
    if (kind == SelectionKind::Pushpin)
        map.SettleNote(document.pins.emplace_back(*map.Pins().At(std::get<Pushpin>(main.map.Selection).Ref().slot)));
    else
        document.shapes.push_back(*map.Shapes().At(std::get<Shape>(main.map.Selection).Ref().slot));
    main.services.desktop.SetClipboardText(WriteMapDocument(document));
    return true;
}

void DeleteSelection(MainWindow& main)
{
    const SelectionKind kind = KindOfSelection(main);
    if (kind == SelectionKind::Pushpin)
        std::get<Pushpin>(main.map.Selection).Delete();
    else if (kind == SelectionKind::Shape)
        std::get<Shape>(main.map.Selection).Delete();
    SelectOnMap(main, {});
}

// What the clipboard holds for the map; nothing where it holds something else.
std::optional<MapDocument> ClipboardDocument(const MainWindow& main)
{
    const std::string text = main.services.desktop.ClipboardText(kLongestPaste);
    if (!text.starts_with('{'))
        return std::nullopt;
    try {
        MapDocument document = ReadMapDocument(text);
        if (!document.pins.empty() || !document.shapes.empty())
            return document;
    } catch (const Failure&) {
        // Text of another program is no failure of ours.
    }
    return std::nullopt;
}

} // namespace

void mnuEditCopy_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuEditCopy", [&] { CopySelection(main); });
}

void mnuEditCut_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuEditCut", [&] {
        if (CopySelection(main))
            DeleteSelection(main);
    });
}

void mnuEditDelete_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuEditDelete", [&] { DeleteSelection(main); });
}

void mnuEditPaste_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuEditPaste", [&] {
        const auto document = ClipboardDocument(main);
        if (!document)
            return;
        Map& map = main.mpCtrl.RequireMap();
        MapSelection last;
        for (const ShapeData& shape : document->shapes)
            last = AddShape(map, shape);
        for (const PinData& pin : document->pins)
            last = AddPin(map, pin);
        SelectOnMap(main, last);
    });
}

bool CanPaste(const MainWindow& main)
{
    return main.mpCtrl.ActiveMap() && ClipboardDocument(main).has_value();
}

void mnuCopyMap_Click(MainWindow& main)
{
    if (main.mpCtrl.ActiveMap())
        main.services.desktop.CopyMapPicture();
}

void mnuCopyDirections_Click(MainWindow& main)
{
    const std::string text = DirectionsText(main);
    if (!text.empty())
        main.services.desktop.SetClipboardText(text);
}

} // namespace ruvenmark
