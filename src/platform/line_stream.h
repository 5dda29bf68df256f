#pragma once

#include "platform/line_look_ahead.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ruvenmark {

class IByteStream;

// The lines of a stream one by one, CR LF and LF alike, in memory that does not grow with them. A UTF-8 mark ahead of
// the first one is passed over.
class LineStream {
public:
    // Of a longer line only so much is kept.
    static constexpr std::size_t kMaxLine = 65536;

    // The stream outlives this.
    explicit LineStream(IByteStream& bytes);

    enum class Step : std::uint8_t { Line, Waiting, End };
    // Goes on to the next line; Waiting where the stream gave nothing within the wait. Raises Failure.
    Step Next(std::chrono::milliseconds wait);

    // Without its line end. Lives until Next.
    std::string_view Line() const { return m_line; }
    bool IsAtEnd() const { return m_bAtEnd; }
    std::uint64_t LineStart() const { return m_lineStart; } // In bytes from the stream's beginning.
    // What stands behind the line, where the stream was read to its end; lives until Next.
    std::optional<std::string_view> Rest() const;
    // Lines behind this one, as far as they are in memory already: each call gives the next. Live until Next.
    std::optional<std::string_view> Ahead() { return m_lookAhead.Next(Unread()); }

private:
    std::string_view Unread() const;
    void Take(std::size_t length, std::size_t lengthWithEnd);
    void SkipLongLine();
    bool Fill(std::chrono::milliseconds wait);

    IByteStream& m_bytes;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0, m_end = 0; // Of what is unread in the buffer.
    std::size_t m_searched = 0;         // So much of it holds no line end.
    std::uint64_t m_offset = 0;         // Of the buffer's first byte in the stream.
    std::uint64_t m_lineStart = 0;
    std::string_view m_line;
    LineLookAhead m_lookAhead;
    bool m_bSkipping = false; // The rest of a line that was too long.
    bool m_bStreamEnded = false;
    bool m_bAtEnd = false;
};

} // namespace ruvenmark
