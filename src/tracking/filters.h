#pragma once

#include "core/channel.h"

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Whether the text is like one of the patterns that stand in the list with blanks between them: "*" any run, "?" one
// character, "#" one digit, "[a-c]" one of a class, "[!a-c]" one that is not. Case counts.
bool MatchesList(std::string_view text, std::string_view list);

// True to drop the report. Latitude and longitude are -1000 for a report without a position. Never fails.
bool FilterReport(MainWindow& main, Channel channel, std::string_view call, std::string_view dest, double lat,
                  double lon);

// Whether the channel's filter is on and drops the report.
bool IsFiltered(MainWindow& main, Channel channel, std::string_view call, std::string_view dest, double lat,
                double lon);

void LoadFilters(MainWindow& main);
void SaveFilters(MainWindow& main);

} // namespace ruvenmark
