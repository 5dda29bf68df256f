#pragma once

namespace ruvenmark {

struct MainWindow;

// Brings the program up in its fixed order. A Failure in the early steps skips that step; a later one skips what is
// left, and is told.
void StartMainWindow(MainWindow& main);

} // namespace ruvenmark
