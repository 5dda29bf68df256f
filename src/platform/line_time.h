#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// When a line was heard, as a program put it before the packet. The zone is not told: only distances matter.
struct LineTime {
    std::chrono::milliseconds at{0}; // Since 1970 where it is dated, else since midnight.
    bool bDated = false;
    friend bool operator==(const LineTime&, const LineTime&) = default;
};

// "2023-12-24 12:07:19.102 N0CALL>...", "[12:07:19] N0CALL>...", "1703419639 N0CALL>..."; nothing where none stands
// before the call.
std::optional<LineTime> TimeOfLine(std::string_view line);
std::string ShownTime(const LineTime& time); // "2023-12-24 12:07:19", "12:07:19"

} // namespace ruvenmark
