#pragma once

#include "links/link_status.h"

#include <chrono>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

void NoteLine(LinkStatus& status, Moment now);

// "a moment", "1 second", "59 seconds", "2 minutes", "1 hour 5 minutes", "3 days 2 hours"
std::string AgeText(std::chrono::steady_clock::duration age);
// How long it stands, what was heard and how long ago: "Connected for 2 minutes; 1 line heard, the last one a moment
// ago". `unit` is what is counted. Only for a connection that stands.
std::string StatusText(const LinkStatus& status, Moment now, std::string_view unit);

// The TNC's or the packet engine's, which no keepalive tells of.
void BeginRadioStatus(MainWindow& main);
void NoteRadioLine(MainWindow& main);
void EndRadioStatus(MainWindow& main);

// Works the panels' tips out anew, as ages grow; for whoever shows them.
void ShowLinkStatus(MainWindow& main);

} // namespace ruvenmark
