#include "aprs/comment.h"

#include "aprs/text.h"

namespace ruvenmark::aprs {

void Comment::Set(std::size_t piece, std::string_view text)
{
    m_pieces[piece] = {static_cast<std::uint16_t>(text.data() - m_text), static_cast<std::uint16_t>(text.size())};
}

std::optional<std::string_view> Comment::Whole() const
{
    if (m_count > 1)
        return std::nullopt;
    return m_count == 0 ? std::string_view() : (*this)[0];
}

std::string Comment::ToString() const
{
    std::string text;
    for (std::size_t i = 0; i < m_count; ++i)
        text += (*this)[i];
    return text;
}

void Comment::Erase(std::size_t piece)
{
    for (std::size_t i = piece + 1; i < m_count; ++i)
        m_pieces[i - 1] = m_pieces[i];
    --m_count;
}

void Comment::Cut(std::size_t piece, std::size_t begin, std::size_t size)
{
    const std::string_view before = (*this)[piece].substr(0, begin);
    const std::string_view after = (*this)[piece].substr(begin + size);
    if (before.empty() && after.empty()) {
        Erase(piece);
    } else if (before.empty()) {
        Set(piece, after);
    } else if (after.empty()) {
        Set(piece, before);
    } else if (m_count < kMaxPieces) {
        for (std::size_t i = m_count; i > piece + 1; --i)
            m_pieces[i] = m_pieces[i - 1];
        Set(piece, before);
        Set(piece + 1, after);
        ++m_count;
    }
}

void Comment::Tidy()
{
    if (const auto whole = Whole())
        return Assign(Tidied(*whole));
    if (m_count > 0 && (*this)[0].front() == '/')
        Set(0, (*this)[0].substr(1));
    while (m_count > 0) {
        Set(0, TrimLeft((*this)[0]));
        if (m_pieces[0].size > 0)
            break;
        Erase(0);
    }
    while (m_count > 0) {
        const std::size_t last = m_count - 1U;
        Set(last, TrimRight((*this)[last]));
        if (m_pieces[last].size > 0)
            break;
        Erase(last);
    }
}

} // namespace ruvenmark::aprs
