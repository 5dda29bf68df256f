#pragma once

#include "aprs/packet.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace ruvenmark {

// What a packet is called in output, such as "position" or "message"; "undecoded" for a refused one.
std::string_view PacketTypeName(const aprs::Packet& packet);

// The packet as one flat object, keys always in the same order, absent values left out. Texts are valid UTF-8. `stamp`
// is what a log told of its reception, if it comes from one.
nlohmann::ordered_json PacketJson(const aprs::Packet& packet, std::string_view stamp = {});

} // namespace ruvenmark
