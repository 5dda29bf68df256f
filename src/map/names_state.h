#pragma once

#include "core/channel.h"

#include <cstdint>

namespace ruvenmark {

struct MainWindow;

// Balloon state of a channel's new markers: 1 shows their names. Raises Failure for a setting that is no number.
std::int32_t NamesState(const MainWindow& main, Channel channel);
void SetNamesState(MainWindow& main, Channel channel, bool bShow);
// False for a setting that is neither 1 nor 0.
bool IsNamesState(const MainWindow& main, Channel channel, bool bShow);

} // namespace ruvenmark
