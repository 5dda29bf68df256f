#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ruvenmark {

// Packet lines of invented stations in about the proportions of a server's full feed: positions of all forms 55 % (a
// quarter of them Mic-E), weather, objects and items, status, telemetry, messages and a few that cannot be read.
// The same seed gives the same lines on every machine.
std::vector<std::string> MakePacketMix(std::size_t count, std::uint32_t seed = 1);

} // namespace ruvenmark
