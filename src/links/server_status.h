#pragma once

#include "links/link_status.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

// Of the connection to the APRS server also: whether what is sent is passed on, and whether the server still speaks.
struct ServerStatus : LinkStatus {
    enum class Login : std::uint8_t { None, Unanswered, Verified, Unverified };

    std::string serverName; // As the server calls itself; empty until it does.
    Login login = Login::None;
    std::string complaint; // The last one of the server about what it was sent.
    bool bSilent = false;  // For so long that the operator was told.
};

} // namespace ruvenmark
