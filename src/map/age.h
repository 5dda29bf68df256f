#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// How long ago something was heard: "just now", "5 min ago", "2 h 10 min ago", "3 days ago". Empty for a moment that
// is not known, which is 0. Both in seconds since 1970.
std::string AgeText(std::int64_t now, std::uint32_t heard);

// Whether a marker heard then is older than so many minutes; one of which nothing is known never is, and none where the
// minutes are 0.
bool IsFaded(std::int64_t now, std::uint32_t heard, std::int32_t minutes);

} // namespace ruvenmark
