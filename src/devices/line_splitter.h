#pragma once

#include "platform/line_look_ahead.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// Cuts a stream into lines that end in LF or CR LF. A line longer than the limit is left out whole: its beginning alone
// would say something else.
class LineSplitter {
public:
    explicit LineSplitter(std::size_t longest) : m_longest(longest) {}

    void Take(std::string_view bytes) { m_text += bytes; }
    // The next whole line without its end; nothing once all that was taken is handed out. What it then keeps is never
    // longer than the limit.
    std::optional<std::string> Next();
    // Lines behind that one, as far as they were taken: each call gives the next. Live until Next or Take.
    std::optional<std::string_view> Ahead() { return m_lookAhead.Next(std::string_view(m_text).substr(m_start)); }

private:
    std::size_t m_longest;
    std::string m_text;
    std::size_t m_start = 0; // Of the first line not handed out.
    LineLookAhead m_lookAhead;
    bool m_bTooLong = false; // The beginning of this line is thrown away already.
};

} // namespace ruvenmark
