#pragma once

namespace ruvenmark {

struct MainWindow;

// The three lists of the server dialog and its fields. An entry is cut at its first colon; a list that is empty or did
// not change leaves its file as it is. Saving raises Failure in the end where a file could not be written; the rest is
// saved all the same.
void LoadServerLists(MainWindow& main);
void SaveServerLists(MainWindow& main);

} // namespace ruvenmark
