#pragma once

#include "app/options.h"

#include <iosfwd>
#include <vector>

namespace ruvenmark {

class SendRun;
struct MainWindow;

// How a link is connected without its dialog.
struct LinkConnect {
    LinkName link;
    void (*connect)(MainWindow& main, const LinkOption& option);
    bool (*isConnected)(const MainWindow& main);
};
const LinkConnect& ConnectOf(LinkName link);

// Connects the links, sends what is to be sent, and lets the event loop run for the time, or until all is sent, or else
// until a signal. What the status panels say goes to `err`. False where a link was never connected.
bool RunLinks(MainWindow& main, const ProgramOptions& options, SendRun& sends, std::ostream& err);

} // namespace ruvenmark
