#pragma once

#include "contracts/report_source.h"
#include "core/channel.h"

#include <memory>

namespace ruvenmark {

struct MainWindow;

// Hands the events of a channel's source to its handlers. The window outlives the sink.
std::unique_ptr<IReportSink> MakeReportSink(MainWindow& main, Channel channel);

} // namespace ruvenmark
