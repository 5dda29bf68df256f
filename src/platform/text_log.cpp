#include "platform/text_log.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::size_t kBlock = 65536;

} // namespace

void TextLog::AddLine(std::string_view line)
{
    Add(line);
    Add("\r\n");
    Changed.Raise();
}

std::string TextLog::From(std::size_t position) const
{
    std::string text;
    if (position >= m_size)
        return text;
    text.reserve(m_size - position);
    std::size_t skip = position % kBlock;
    for (std::size_t i = position / kBlock; i < m_blocks.size(); ++i) {
        text.append(m_blocks[i], skip);
        skip = 0;
    }
    return text;
}

void TextLog::Add(std::string_view text)
{
    while (!text.empty()) {
        if (m_size % kBlock == 0)
            m_blocks.emplace_back();
        std::string& block = m_blocks.back();
        const std::size_t count = std::min(text.size(), kBlock - block.size());
        block.append(text.substr(0, count));
        text.remove_prefix(count);
        m_size += count;
    }
}

} // namespace ruvenmark
