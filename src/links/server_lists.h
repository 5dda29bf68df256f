#pragma once

namespace ruvenmark {

struct MainWindow;

// The three lists of the server dialog and its fields. An entry is cut at its first colon; an empty list leaves its
// file as it is. A file that cannot be written is counted and keeps nothing else from being saved.
void LoadServerLists(MainWindow& main);
void SaveServerLists(MainWindow& main);

} // namespace ruvenmark
