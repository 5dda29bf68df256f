#pragma once

namespace ruvenmark {

struct MainWindow;

// Brings the program up in its fixed order. A Failure in the early steps skips that step; a later one skips what is
// left.
void StartMainWindow(MainWindow& main);

// Offers to save the map, ends what runs and saves what was loaded. False, with nothing changed, when the operator
// cancels. A load that runs is stopped first.
bool StopMainWindow(MainWindow& main);

} // namespace ruvenmark
