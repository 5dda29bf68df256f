#pragma once

#include <cstdint>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// False when the operator cancels. Yes saves, No forgets the changes. Raises Failure when the map cannot be saved.
bool AskToSaveMap(MainWindow& main);

// Commands of the File menu. A Failure ends them with a notice, and map, file name and caption are as they were.
void mnuFileNew_Click(MainWindow& main);
void mnuFileOpen_Click(MainWindow& main);
void mnuFileSave_Click(MainWindow& main);
void mnuFileSaveAs_Click(MainWindow& main);
void mnuFilePrint_Click(MainWindow& main);
void mnuFileClose_Click(MainWindow& main);

// As "Open Map" does with the file that was chosen.
void OpenMapFile(MainWindow& main, std::string_view path);

// Keeps the region in the store at once; another region than the map's makes a new map.
void ChangeRegion(MainWindow& main, std::int32_t region);

// Commands of the View menu.
void SetMapFont(MainWindow& main, std::int32_t font);
void SetMapStyle(MainWindow& main, std::int32_t style);
void ToggleMapToolbar(MainWindow& main, std::int32_t index);

} // namespace ruvenmark
