#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;
struct WindowState;

// The web view in the right pane; the tree stays.
void ShowWebView(MainWindow& main, std::string_view address);

// What the web view shows at an address: true for a page that was opened in the system's browser instead; the view then
// shows BrowserNotice.
bool IsBrowserPage(std::string_view address);
// A small HTML page that says so, or that no browser came, with the link.
std::string BrowserNotice(const WindowState& window);
// False when no browser could be started; that is told.
bool OpenInBrowser(MainWindow& main, std::string_view url);

// Command: the help page; where it shows already it stays.
void mnuRuvenmarkHelp_Click(MainWindow& main);

} // namespace ruvenmark
