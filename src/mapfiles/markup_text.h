#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

// What a line of HTML says, without its tags; characters that are told by name or number as UTF-8. An unknown name
// stays as it is written.
std::string TextOfMarkup(std::string_view markup);

} // namespace ruvenmark
