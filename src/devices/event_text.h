#pragma once

#include "aprs/packet.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>

// Texts of packets as events carry them: in one stretch, and without line ends and NUL.
namespace ruvenmark {

inline bool IsForbidden(char c)
{
    return c == '\0' || c == '\r' || c == '\n';
}

inline bool IsClean(std::string_view text)
{
    return text.find('\0') == std::string_view::npos && text.find('\r') == std::string_view::npos &&
           text.find('\n') == std::string_view::npos;
}

// A text without what is forbidden. Texts of clean lines, nearly all, are passed on as they are.
class EventText {
public:
    EventText(std::string_view text, bool bClean) : m_text(text)
    {
        if (!bClean) {
            m_store.reserve(text.size());
            std::copy_if(text.begin(), text.end(), std::back_inserter(m_store), [](char c) { return !IsForbidden(c); });
            m_text = m_store;
        }
    }
    EventText(const EventText&) = delete;
    EventText& operator=(const EventText&) = delete;

    operator std::string_view() const { return m_text; }

private:
    std::string m_store;
    std::string_view m_text;
};

// A comment in one stretch; put together only where something was cut out of it.
class CommentText {
public:
    explicit CommentText(const aprs::Comment& comment)
    {
        if (const auto whole = comment.Whole()) {
            m_text = *whole;
            return;
        }
        std::size_t size = 0;
        for (std::size_t i = 0; i < comment.Count(); ++i) {
            const std::string_view piece = comment[i];
            const std::size_t count = std::min(piece.size(), m_store.size() - size);
            std::copy_n(piece.data(), count, m_store.data() + size);
            size += count;
        }
        m_text = {m_store.data(), size};
    }
    CommentText(const CommentText&) = delete;
    CommentText& operator=(const CommentText&) = delete;

    operator std::string_view() const { return m_text; }

private:
    std::array<char, 1024> m_store; // A whole line; uninitialised on purpose.
    std::string_view m_text;
};

} // namespace ruvenmark
