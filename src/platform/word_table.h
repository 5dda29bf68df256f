#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ruvenmark {

// Words that many share: each stands here once, for as long as somebody has it.
class WordTable {
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view word) const { return std::hash<std::string_view>()(word); }
    };
    using Words = std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>>; // How many have it.

public:
    using Entry = Words::value_type;

    static std::string_view Text(const Entry& entry) { return entry.first; }

    const Entry& Take(std::string_view word)
    {
        auto it = m_words.find(word);
        if (it == m_words.end())
            it = m_words.emplace(word, 0).first;
        ++it->second;
        return *it;
    }
    void Return(const Entry& entry)
    {
        const auto it = m_words.find(entry.first);
        if (--it->second == 0)
            m_words.erase(it);
    }
    std::size_t Count() const { return m_words.size(); }

private:
    Words m_words;
};

} // namespace ruvenmark
