#pragma once

namespace ruvenmark {

struct MainWindow;

// Cut, Copy and Delete act on the map's selection. A pin or shape goes over the clipboard as the GeoJSON text of a map
// document that holds it alone. A Failure ends a command without a word.
void mnuEditCut_Click(MainWindow& main);
void mnuEditCopy_Click(MainWindow& main);
void mnuEditDelete_Click(MainWindow& main);
// Adds what such a text holds to the map, where it stood, and selects the last of it.
void mnuEditPaste_Click(MainWindow& main);
bool CanPaste(const MainWindow& main);

void mnuCopyMap_Click(MainWindow& main);
void mnuCopyDirections_Click(MainWindow& main);

} // namespace ruvenmark
