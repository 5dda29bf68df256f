#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace ruvenmark {

// What is known of the connection to the APRS server beyond that it stands: whether what is sent is passed on.
struct ServerStatus {
    enum class Login : std::uint8_t { None, Unanswered, Verified, Unverified };

    std::string serverName; // As the server calls itself; empty until it does.
    std::string since;      // Local date and time; empty while there is no connection.
    std::string lastHeard;  // Local time of the last line; empty before the first.
    std::uint64_t lines = 0;
    Login login = Login::None;
    std::string complaint;                       // The last one of the server about what it was sent.
    std::chrono::steady_clock::time_point shown; // When the tip was written last.
};

} // namespace ruvenmark
