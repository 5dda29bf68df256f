#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

inline constexpr std::size_t kTimeSize = 7;
inline constexpr std::size_t kMonthTimeSize = 8;

// Both set a time that has not been set yet, where it stands: one that is made elsewhere and then copied costs more
// than the reading.

// Of seven bytes: DDHHMMz, DDHHMM/ or HHMMSSh (chapter 6). Text that is none of them is kept, with form None.
void ParseTime(std::string_view text, TimeStamp& time);
// MDHM of weather reports without a position: MMDDHHMM, UTC.
void ParseMonthTime(std::string_view text, TimeStamp& time);

} // namespace ruvenmark::aprs
