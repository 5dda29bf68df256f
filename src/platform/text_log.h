#pragma once

#include "platform/event.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

// A text that only grows, line by line, for hours: adding a line costs the same however much there is.
class TextLog {
public:
    void AddLine(std::string_view line); // With CR LF behind it.

    std::size_t Size() const { return m_size; } // In bytes.
    bool IsEmpty() const { return m_size == 0; }
    std::string Text() const { return From(0); }
    std::string From(std::size_t position) const; // What stands there and behind it.

    Event<> Changed;

private:
    void Add(std::string_view text);

    std::vector<std::string> m_blocks; // All full but the last.
    std::size_t m_size = 0;
};

} // namespace ruvenmark
