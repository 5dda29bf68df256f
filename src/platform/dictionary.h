#pragma once

#include "platform/text_hash.h"

#include <cstddef>
#include <iterator>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <tsl/robin_set.h>
#include <utility>

namespace ruvenmark {

// Texts mapped to values in the order of their first insertion, the order in which files and settings are written.
// Entries stay where they are until they are removed.
template <typename Value>
class Dictionary {
public:
    struct Entry {
        const std::string key;
        Value value;
    };
    using Entries = std::list<Entry>;

    Dictionary() = default;
    Dictionary(const Dictionary& other) : m_entries(other.m_entries)
    {
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry)
            m_index.insert(entry);
    }
    Dictionary(Dictionary&&) noexcept = default;
    Dictionary& operator=(const Dictionary& other)
    {
        if (this != &other)
            *this = Dictionary(other);
        return *this;
    }
    Dictionary& operator=(Dictionary&&) noexcept = default;
    ~Dictionary() = default;

    Value* Find(std::string_view key)
    {
        const auto it = m_index.find(key);
        return it == m_index.end() ? nullptr : &(*it)->value;
    }
    const Value* Find(std::string_view key) const
    {
        const auto it = m_index.find(key);
        return it == m_index.end() ? nullptr : &(*it)->value;
    }
    bool Contains(std::string_view key) const { return m_index.contains(key); }

    // The value under the key; an entry that is not there yet is made with a default value.
    Value& Ensure(std::string_view key)
    {
        if (Value* value = Find(key))
            return *value;
        return Append(key, Value());
    }

    // An entry that stands keeps its place.
    void Set(std::string_view key, Value value)
    {
        if (Value* found = Find(key))
            *found = std::move(value);
        else
            Append(key, std::move(value));
    }

    // False, with nothing changed, when the key is taken.
    bool Add(std::string_view key, Value value)
    {
        if (Contains(key))
            return false;
        Append(key, std::move(value));
        return true;
    }

    bool Remove(std::string_view key)
    {
        const auto it = m_index.find(key);
        if (it == m_index.end())
            return false;
        const auto entry = *it;
        m_index.erase(it);
        m_entries.erase(entry);
        return true;
    }

    void Clear()
    {
        m_index.clear();
        m_entries.clear();
    }

    std::size_t Count() const { return m_entries.size(); }
    bool IsEmpty() const { return m_entries.empty(); }

    typename Entries::iterator begin() { return m_entries.begin(); }
    typename Entries::iterator end() { return m_entries.end(); }
    typename Entries::const_iterator begin() const { return m_entries.begin(); }
    typename Entries::const_iterator end() const { return m_entries.end(); }

private:
    using Iterator = typename Entries::iterator;
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const { return TextHash(HashSeed(), key); }
        std::size_t operator()(Iterator entry) const { return (*this)(entry->key); }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(Iterator a, Iterator b) const { return a == b; }
        bool operator()(Iterator entry, std::string_view key) const { return entry->key == key; }
        bool operator()(std::string_view key, Iterator entry) const { return entry->key == key; }
    };

    Value& Append(std::string_view key, Value value)
    {
        m_entries.push_back(Entry{std::string(key), std::move(value)});
        const auto last = std::prev(m_entries.end());
        m_index.insert(last);
        return last->value;
    }

    Entries m_entries;
    tsl::robin_set<Iterator, Hash, Equal, std::allocator<Iterator>, true> m_index;
};

} // namespace ruvenmark
