#pragma once

#include "aprs/packet.h"

#include <optional>
#include <string_view>

namespace ruvenmark::aprs {

// Symbols of packets that have none in their text (protocol reference, chapter 20): a destination such as GPSMV, SPCNV
// with an overlay behind it, GPSC30 or GPSE30; else the SSID of the source, by custom.
std::optional<Symbol> DestinationSymbol(std::string_view dest);
std::optional<Symbol> SsidSymbol(std::string_view source);

} // namespace ruvenmark::aprs
