#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Takes the free text behind a position apart: altitude in feet ("/A=001234", protocol reference, chapter 6), base-91
// telemetry between bars (chapter 13), further digits of the position ("!W12!", DAO), the station's reach (PHG) where
// it was not told in front; in Mic-E also the altitude in metres. What is left becomes the report's comment.
void ParseComment(std::string_view text, PositionReport& report);

} // namespace ruvenmark::aprs
