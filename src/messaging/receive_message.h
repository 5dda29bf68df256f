#pragma once

#include "core/channel.h"

#include <string_view>

namespace ruvenmark {

struct MainWindow;
struct MessageReport;

// A message to this addressee concerns this station. Only as many characters are compared as the addressee's call has.
bool IsMessageForMe(const MainWindow& main, std::string_view to);

// A message or acknowledgement came in. A replayed file is never answered.
void aprs_ReportAprsMsg(MainWindow& main, Channel channel, const MessageReport& report);

} // namespace ruvenmark
