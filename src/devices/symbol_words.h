#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark {

// The word by which the logic and the views know a symbol, such as "Car" or "Digi"; "Default" for those without one.
// Overlays share the words of the alternate table, but for that of clubs.
std::string_view SymbolWord(aprs::Symbol symbol);

} // namespace ruvenmark
