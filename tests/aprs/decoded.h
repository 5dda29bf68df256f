#pragma once

#include "aprs/decode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace ruvenmark::aprs {

// The body of a line that must be of the given kind; a fresh one, and a failed test, where it is not.
template <class Kind>
Kind Decoded(std::string_view line)
{
    const Packet packet = Decode(line);
    const Kind* const body = std::get_if<Kind>(&packet.body);
    EXPECT_NE(body, nullptr) << line << ": " << RefusalText(packet.refusal);
    return body != nullptr ? *body : Kind();
}

inline PositionReport DecodedPosition(std::string_view info, std::string_view dest = "APRS42")
{
    static_assert(std::is_trivially_copyable_v<PositionReport>);
    // Views of the report are views of the line, so it has to stay.
    thread_local std::string line;
    line = std::string("N0AAA>").append(dest).append(":").append(info);
    return Decoded<PositionReport>(line);
}

inline Refusal RefusalOf(std::string_view info)
{
    return Decode(std::string("N0AAA>APRS42,WIDE1-1:").append(info)).refusal;
}

} // namespace ruvenmark::aprs
