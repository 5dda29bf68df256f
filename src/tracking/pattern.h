#pragma once

#include <string_view>

namespace ruvenmark {

// Whether the whole text is like the pattern: "*" any run of characters, "?" one character, "#" one digit, "[abc-f]"
// one of a class, "[!abc-f]" one that is not in it. Case counts; a "[" that is never closed matches nothing. Time is at
// most the product of both lengths.
bool MatchesPattern(std::string_view text, std::string_view pattern);

} // namespace ruvenmark
