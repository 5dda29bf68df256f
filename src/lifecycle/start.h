#pragma once

namespace ruvenmark {

struct MainWindow;

// Whether the links that the operator chose for it connect at the start.
enum class AutoConnect : bool { No, Yes };

// Brings the program up in its fixed order. A Failure in the early steps skips that step; a later one skips what is
// left, and is told.
void StartMainWindow(MainWindow& main, AutoConnect autoConnect = AutoConnect::Yes);

} // namespace ruvenmark
