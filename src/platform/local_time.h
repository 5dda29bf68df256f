#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

// The seconds of a local date and time "2026-11-22 20:15:03", counted as if its day had no other zone: to be compared
// and subtracted. 0 for any other text.
std::int64_t SecondsOfLocalText(std::string_view text);
// The text again; empty for 0.
std::string LocalTextOfSeconds(std::int64_t seconds);

} // namespace ruvenmark
