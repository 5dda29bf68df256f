#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace ruvenmark {

// How far a reader of lines has looked ahead in what it has in memory.
class LineLookAhead {
public:
    static constexpr std::size_t kMostLines = 5;

    // The first line of what is unread that was not seen yet, without its end; nothing where no whole one is left, or
    // the most are ahead already. Lives as long as the unread.
    std::optional<std::string_view> Next(std::string_view unread)
    {
        const std::string_view unseen = unread.substr(m_seen);
        const auto end = m_lines < kMostLines ? unseen.find('\n') : std::string_view::npos;
        if (end == std::string_view::npos)
            return std::nullopt;
        m_seen += end + 1;
        ++m_lines;
        return unseen.substr(0, end > 0 && unseen[end - 1] == '\r' ? end - 1 : end);
    }

    // A line of so many bytes, with its end, is not unread any more.
    void Pass(std::size_t size)
    {
        m_seen -= std::min(m_seen, size);
        m_lines -= std::min<std::size_t>(m_lines, 1);
    }

private:
    std::size_t m_seen = 0; // Bytes of the unread: this many lines.
    std::size_t m_lines = 0;
};

} // namespace ruvenmark
