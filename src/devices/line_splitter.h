#pragma once

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

private:
    std::size_t m_longest;
    std::string m_text;
    std::size_t m_start = 0; // Of the first line not handed out.
    bool m_bTooLong = false; // The beginning of this line is thrown away already.
};

} // namespace ruvenmark
