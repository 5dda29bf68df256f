#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace ruvenmark {

// A report that a live link was told to send.
struct SentReport {
    enum class Road : std::uint8_t { Tnc, Agw, Server };
    Road road;
    bool bWent; // False where a TNC was never typed it, as it refused a command or gave no prompt.
    // As it went: a TNC's own header is not part of it. A server's login is no report.
    std::string_view text;
};

// What somebody beside the logic may want to know of the live links. Called from within the sources: whoever listens
// drops none of them.
struct LinkEvents {
    std::function<void(const SentReport&)> onSent;
    std::function<void()> onAgwPorts; // The packet engine has listed its radio ports.
};

} // namespace ruvenmark
