#pragma once

#include <string_view>

namespace ruvenmark::aprs {

// The program or tracker that sends under a destination; empty where it tells none. Of the patterns that fit, the one
// with the longest beginning counts.
std::string_view DestinationDeviceName(std::string_view dest);

} // namespace ruvenmark::aprs
