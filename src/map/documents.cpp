#include "map/documents.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "platform/numbers.h"
#include "platform/program_name.h"

#include <optional>
#include <string>

namespace ruvenmark {

namespace {

constexpr FileFilter kMapFiles = {"Mappoint Files (*.ptm)", "*.ptm"};

constexpr std::string_view kNotSaved = "The map could not be saved";

// An empty path stands for a new map.
void SetMapFile(MainWindow& main, std::string_view path)
{
    main.map.sMainMapFile = path;
    main.window.caption = kProgramName;
    if (!path.empty())
        main.window.caption.append(" - ").append(path);
    main.window.Changed.Raise();
}

void SaveAs(MainWindow& main)
{
    const auto path = main.services.prompts.SaveFile("Save As", kMapFiles);
    if (!path || path->empty()) {
        main.mpCtrl.RequireMap().SetSaved(true);
        return;
    }
    main.mpCtrl.SaveMapAs(*path);
    SetMapFile(main, *path);
}

void Save(MainWindow& main)
{
    if (main.map.sMainMapFile.empty())
        SaveAs(main);
    else
        main.mpCtrl.SaveMapAs(main.map.sMainMapFile);
}

void NewMap(MainWindow& main, std::int32_t region)
{
    if (!AskToSaveMap(main))
        return;
    main.mpCtrl.NewMap(region);
    SetMapFile(main, {});
}

void Open(MainWindow& main)
{
    if (!AskToSaveMap(main))
        return;
    const auto path = main.services.prompts.OpenFile("Open", kMapFiles);
    if (!path || path->empty())
        return;
    main.mpCtrl.OpenMap(*path);
    SetMapFile(main, *path);
}

} // namespace

bool AskToSaveMap(MainWindow& main)
{
    Map* map = main.mpCtrl.ActiveMap();
    if (!map || map->Saved())
        return true;
    const Answer answer = main.services.prompts.AskYesNoCancel("Do you want to save the current map?");
    if (answer == Answer::Cancel)
        return false;
    if (answer == Answer::Yes)
        Save(main);
    map->SetSaved(true);
    return true;
}

void mnuFileNew_Click(MainWindow& main)
{
    const std::int32_t region = IsMapRegion(main.map.Region) ? main.map.Region : main.mpCtrl.MapRegion();
    AttemptAloud(main, "No new map was made", [&] { NewMap(main, region); });
}

void mnuFileOpen_Click(MainWindow& main)
{
    AttemptAloud(main, "No map was opened", [&] { Open(main); });
}

void mnuFileSave_Click(MainWindow& main)
{
    AttemptAloud(main, kNotSaved, [&] { Save(main); });
}

void mnuFileSaveAs_Click(MainWindow& main)
{
    AttemptAloud(main, kNotSaved, [&] { SaveAs(main); });
}

void mnuFilePrint_Click(MainWindow& main)
{
    AttemptAloud(main, "The map was not printed", [&] {
        if (const auto choice = main.services.desktop.AskPrint("Print"))
            main.services.desktop.PrintMap(*choice);
    });
}

void mnuFileClose_Click(MainWindow& main)
{
    main.window.CloseWanted.Raise();
}

void OpenMapFile(MainWindow& main, std::string_view path)
{
    AttemptAloud(main, "No map was opened", [&] {
        if (!AskToSaveMap(main))
            return;
        main.mpCtrl.OpenMap(path);
        SetMapFile(main, path);
    });
}

void ChangeRegion(MainWindow& main, std::int32_t region)
{
    main.stored.SetWhole(Setting::Region, region);
    AttemptAloud(main, "The settings could not be saved", [&] { main.stored.Flush(); });
    AttemptAloud(main, "The region was not changed", [&] {
        if (main.mpCtrl.MapRegion() != region)
            NewMap(main, region);
    });
    main.map.Region = main.mpCtrl.MapRegion();
}

void SetMapFont(MainWindow& main, std::int32_t font)
{
    Attempt(main.abandoned, "SetMapFont", [&] { main.mpCtrl.RequireMap().SetMapFont(font); });
}

void SetMapStyle(MainWindow& main, std::int32_t style)
{
    Attempt(main.abandoned, "SetMapStyle", [&] { main.mpCtrl.RequireMap().SetMapStyle(style); });
}

void ToggleMapToolbar(MainWindow& main, std::int32_t index)
{
    main.mpCtrl.SetToolbarVisible(index, !main.mpCtrl.ToolbarVisible(index));
}

} // namespace ruvenmark
