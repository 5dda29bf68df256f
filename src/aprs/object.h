#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Objects (nine bytes of name, a time) and items (three to nine bytes, none), protocol reference, chapter 11. The text
// is the information field without its type byte.
Refusal ParseObject(std::string_view text, ObjectReport& object);
Refusal ParseItem(std::string_view text, ObjectReport& object);

} // namespace ruvenmark::aprs
