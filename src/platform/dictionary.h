#pragma once

#include "platform/hash_index.h"
#include "platform/room_pool.h"
#include "platform/text_hash.h"

#include <cstddef>
#include <iterator>
#include <list>
#include <memory>
#include <string>
#include <string_view>
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
    using Entries = std::list<Entry, PoolAllocator<Entry>>;

    Dictionary() = default;
    Dictionary(const Dictionary& other) : m_entries(other.m_entries)
    {
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry)
            m_index.Add(Hash(entry->key), entry);
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
        const Iterator* found = Look(key);
        return found ? &(*found)->value : nullptr;
    }
    const Value* Find(std::string_view key) const
    {
        const Iterator* found = Look(key);
        return found ? &(*found)->value : nullptr;
    }
    bool Contains(std::string_view key) const { return Look(key) != nullptr; }

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
        const Iterator* found = Look(key);
        if (!found)
            return false;
        const Iterator entry = *found;
        m_index.Remove(Hash(key), [&](Iterator other) { return other == entry; });
        m_entries.erase(entry);
        return true;
    }

    void Clear()
    {
        m_index.Clear();
        m_entries.clear();
    }

    // A key will be looked up, and each of these is asked of its hash when the one ahead of it had some time to fetch
    // memory: where the index tells the entry, the entry, and the value that most likely is meant.
    static std::uint64_t Hash(std::string_view key) { return TextHash(HashSeed(), key); }
    void ExpectPlace(std::uint64_t hash) const { m_index.Expect(hash); }
    void ExpectEntry(std::uint64_t hash) const
    {
        if (const Iterator* entry = m_index.Guess(hash))
            ExpectMemory(&**entry, sizeof(Entry));
    }
    const Value* Guess(std::uint64_t hash) const
    {
        const Iterator* entry = m_index.Guess(hash);
        return entry ? &(*entry)->value : nullptr;
    }

    std::size_t Count() const { return m_entries.size(); }
    bool IsEmpty() const { return m_entries.empty(); }

    typename Entries::iterator begin() { return m_entries.begin(); }
    typename Entries::iterator end() { return m_entries.end(); }
    typename Entries::const_iterator begin() const { return m_entries.begin(); }
    typename Entries::const_iterator end() const { return m_entries.end(); }

private:
    using Iterator = typename Entries::iterator;

    const Iterator* Look(std::string_view key) const
    {
        return m_index.Find(Hash(key), [&](Iterator entry) { return entry->key == key; });
    }

    Value& Append(std::string_view key, Value value)
    {
        m_index.MakeRoom(); // Where there is none, nothing has changed.
        m_entries.push_back(Entry{std::string(key), std::move(value)});
        const auto last = std::prev(m_entries.end());
        m_index.Add(Hash(key), last);
        return last->value;
    }

    Entries m_entries;
    HashIndex<Iterator> m_index;
};

} // namespace ruvenmark
