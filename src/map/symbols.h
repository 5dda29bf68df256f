#pragma once

#include <cstdint>
#include <string_view>

namespace ruvenmark {

inline constexpr std::int16_t kMyStationSymbol = 111;

// The number of the map's picture for a symbol word; case counts. 1 for any word that is not known.
std::int16_t SymbolId(std::string_view word);

} // namespace ruvenmark
