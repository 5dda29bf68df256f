#include "platform/line_stream.h"

#include "platform/files.h"

#include <algorithm>
#include <span>

namespace ruvenmark {

namespace {

constexpr std::size_t kBufferSize = 262144; // A line of the greatest length and a good read behind it.
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

} // namespace

LineStream::LineStream(IByteStream& bytes) : m_bytes(bytes), m_buffer(kBufferSize) {}

LineStream::Step LineStream::Next(std::chrono::milliseconds wait)
{
    for (;;) {
        if (m_bSkipping)
            SkipLongLine();
        const std::string_view unread = Unread();
        const auto end = unread.find('\n', m_searched);
        if (end != std::string_view::npos) {
            Take(std::min(end, kMaxLine), end + 1);
            return Step::Line;
        }
        m_searched = unread.size();
        if (unread.size() > kMaxLine || (m_bStreamEnded && !unread.empty())) {
            m_bSkipping = !m_bStreamEnded;
            Take(std::min(unread.size(), kMaxLine), unread.size());
            return Step::Line;
        }
        if (m_bStreamEnded) {
            m_bAtEnd = true;
            return Step::End;
        }
        if (!Fill(wait))
            return Step::Waiting;
    }
}

std::optional<std::string_view> LineStream::Rest() const
{
    return m_bStreamEnded ? std::optional(Unread()) : std::nullopt;
}

std::string_view LineStream::Unread() const
{
    return {m_buffer.data() + m_begin, m_end - m_begin};
}

void LineStream::Take(std::size_t length, std::size_t lengthWithEnd)
{
    m_line = Unread().substr(0, length);
    m_lineStart = m_offset + m_begin;
    m_begin += lengthWithEnd;
    m_searched = 0;
    m_lookAhead.Pass(lengthWithEnd);
    if (m_line.ends_with('\r'))
        m_line.remove_suffix(1);
    if (m_lineStart == 0 && m_line.starts_with(kUtf8Mark))
        m_line.remove_prefix(kUtf8Mark.size());
}

void LineStream::SkipLongLine()
{
    const auto end = Unread().find('\n');
    m_bSkipping = end == std::string_view::npos && !m_bStreamEnded;
    m_begin = end == std::string_view::npos ? m_end : m_begin + end + 1;
    m_searched = 0;
    m_lookAhead = {};
}

// False where nothing came for now.
bool LineStream::Fill(std::chrono::milliseconds wait)
{
    std::copy(m_buffer.begin() + static_cast<std::ptrdiff_t>(m_begin),
              m_buffer.begin() + static_cast<std::ptrdiff_t>(m_end), m_buffer.begin());
    m_offset += m_begin;
    m_end -= m_begin;
    m_begin = 0;
    const std::size_t before = m_end;
    while (m_end < m_buffer.size()) {
        const auto count = m_bytes.Read(std::span(m_buffer).subspan(m_end), wait);
        m_bStreamEnded = !count;
        if (count.value_or(0) == 0)
            break;
        m_end += *count;
        wait = std::chrono::milliseconds(0);
    }
    return m_end > before || m_bStreamEnded;
}

} // namespace ruvenmark
