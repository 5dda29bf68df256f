#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

inline constexpr std::size_t kTimeSize = 7;
inline constexpr std::size_t kMonthTimeSize = 8;

// DDHHMMz, DDHHMM/ or HHMMSSh (chapter 6). Text that is none of them is kept, with form None.
TimeStamp ParseTime(std::string_view text);
// MDHM of weather reports without a position: MMDDHHMM, UTC.
TimeStamp ParseMonthTime(std::string_view text);

} // namespace ruvenmark::aprs
