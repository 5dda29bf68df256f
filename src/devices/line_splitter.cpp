#include "devices/line_splitter.h"

namespace ruvenmark {

std::optional<std::string> LineSplitter::Next()
{
    for (std::size_t end = 0; (end = m_text.find('\n', m_start)) != std::string::npos;) {
        std::string line = m_text.substr(m_start, end - m_start);
        m_lookAhead.Pass(end + 1 - m_start);
        m_start = end + 1;
        while (line.ends_with('\r'))
            line.pop_back();
        const bool bWhole = !m_bTooLong && line.size() <= m_longest;
        m_bTooLong = false;
        if (bWhole)
            return line;
    }
    m_text.erase(0, m_start);
    m_start = 0;
    if (m_text.size() > m_longest + 1) { // One for the CR.
        m_text.clear();
        m_bTooLong = true;
    }
    return std::nullopt;
}

} // namespace ruvenmark
