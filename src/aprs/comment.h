#pragma once

#include "aprs/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark::aprs {

// Free text of a position with what was cut out of its middle (altitude, telemetry, ...): the remaining stretches of
// the line, in order. Nearly always one; never empty ones.
class Comment {
public:
    static constexpr std::size_t kMaxPieces = 6;

    // The whole text in one piece; at most 64 KiB, no line is that long. What was in it is forgotten.
    void Assign(std::string_view text)
    {
        m_text = text.data();
        m_pieces[0] = {0, static_cast<std::uint16_t>(text.size())};
        m_count = text.empty() ? 0 : 1;
    }

    std::size_t Count() const { return m_count; }
    std::string_view operator[](std::size_t piece) const
    {
        return {m_text + m_pieces[piece].begin, m_pieces[piece].size};
    }
    bool IsEmpty() const { return m_count == 0; }
    // The text in one stretch; nothing where it lies in several.
    std::optional<std::string_view> Whole() const;
    std::string ToString() const;

    // Takes `size` bytes at `begin` out of one piece. Without room for another piece the text stays as it is.
    void Cut(std::size_t piece, std::size_t begin, std::size_t size);
    // Takes off a slash in front, the delimiter behind other data, and blanks at both ends.
    void Tidy();
    // The same of a text in one piece.
    static std::string_view Tidied(std::string_view text)
    {
        if (text.starts_with('/'))
            text.remove_prefix(1);
        return Trim(text);
    }

private:
    // Kept small: every position carries one.
    struct Piece {
        std::uint16_t begin, size;
    };

    void Set(std::size_t piece, std::string_view text);
    void Erase(std::size_t piece);

    const char* m_text = nullptr;
    std::array<Piece, kMaxPieces> m_pieces; // Good up to the count.
    std::uint8_t m_count = 0;
};

} // namespace ruvenmark::aprs
