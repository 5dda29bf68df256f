#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// The web view in the right pane; the tree stays.
void ShowWebView(MainWindow& main, std::string_view address);

// What the web view shows at an address: true for a page that was opened in the system's browser instead; the view then
// shows BrowserNotice.
bool IsBrowserPage(std::string_view address);
// A small HTML page that says so, with the link.
std::string BrowserNotice(std::string_view address);

// Command: the help page; where it shows already it stays.
void mnuRuvenmarkHelp_Click(MainWindow& main);

} // namespace ruvenmark
