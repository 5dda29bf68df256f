#pragma once

#include <string_view>

namespace ruvenmark::aprs {

// The bytes around a Mic-E text that tell the sender's radio: one in front, up to two behind. Returns the text between
// them and names the radio, where it is known. Text without such bytes stays as it is.
std::string_view TakeDevice(std::string_view text, std::string_view& device);

} // namespace ruvenmark::aprs
