#pragma once

#include "aprs/packet.h"

namespace ruvenmark::aprs {

// Whether a station tells with its position that it takes messages.
bool TakesMessages(const Packet& packet);

} // namespace ruvenmark::aprs
