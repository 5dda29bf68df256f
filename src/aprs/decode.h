#pragma once

#include "aprs/packet.h"

#include <cstddef>
#include <string_view>

namespace ruvenmark::aprs {

// Longer lines are refused; servers send at most 512 bytes.
inline constexpr std::size_t kMaxLine = 1024;

// Reads one packet in text form, SOURCE>DEST,PATH:information, with or without its line end. Any bytes may come.
// Takes no memory but its result; a pure function. Never raises: what cannot be read is refused with its reason.
Packet Decode(std::string_view line);

} // namespace ruvenmark::aprs
