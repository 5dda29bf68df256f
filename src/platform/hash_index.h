#pragma once

#include "platform/expect_memory.h"
#include "platform/memory_block.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace ruvenmark {

// Finds items by the hash of what they are called; of several with one hash the caller tells which it means. All stands
// in one table, and the memory that a look-up will wait for can be asked for long before. With the last item the table
// goes.
template <typename Item>
class HashIndex {
public:
    HashIndex() = default;
    HashIndex(const HashIndex&) = default;
    HashIndex& operator=(const HashIndex&) = default;
    HashIndex(HashIndex&& other) noexcept { *this = std::move(other); }
    HashIndex& operator=(HashIndex&& other) noexcept
    {
        m_places = std::exchange(other.m_places, {});
        m_count = std::exchange(other.m_count, 0);
        return *this;
    }
    ~HashIndex() = default;

    // Nothing where there is none.
    template <typename IsMeant>
    const Item* Find(std::uint64_t hash, const IsMeant& isMeant) const
    {
        const std::size_t at = Search(hash, isMeant);
        return at != kNowhere ? &m_places[at].item : nullptr;
    }

    // The next one that is added takes no memory.
    void MakeRoom()
    {
        if ((m_count + 1) * 3 > m_places.size() * 2)
            Grow();
    }

    // The item is not in it yet.
    void Add(std::uint64_t hash, Item item)
    {
        MakeRoom();
        Put({Tag(hash), static_cast<std::uint32_t>(hash), std::move(item)});
        ++m_count;
    }

    template <typename IsMeant>
    bool Remove(std::uint64_t hash, const IsMeant& isMeant)
    {
        std::size_t gap = Search(hash, isMeant);
        if (gap == kNowhere)
            return false;
        // Those behind that may stand in the gap move up, so that no search for them ends there.
        for (std::size_t at = Next(gap); m_places[at].tag != 0; at = Next(at)) {
            const std::size_t fromItsPlace = (at - m_places[at].low) & Mask();
            if (fromItsPlace >= ((at - gap) & Mask()))
                m_places[std::exchange(gap, at)] = std::move(m_places[at]);
        }
        m_places[gap] = {};
        if (--m_count == 0)
            Clear();
        return true;
    }

    void Clear() { *this = {}; }

    // A look-up of this hash will come.
    void Expect(std::uint64_t hash) const
    {
        if (!m_places.empty())
            ExpectMemory(&m_places[hash & Mask()], sizeof(Place));
    }
    // What such a look-up will most likely find, by the hash alone; nothing where it finds nothing.
    const Item* Guess(std::uint64_t hash) const
    {
        return Find(hash, [](const Item&) { return true; });
    }

private:
    struct Place {
        std::uint32_t tag = 0; // The hash's upper half, made odd; 0 where nothing is.
        std::uint32_t low = 0; // Its lower half, which tells the place; the next free one is taken.
        Item item{};
    };

    using Places = std::vector<Place, BlockAllocator<Place>>;

    static constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

    static std::uint32_t Tag(std::uint64_t hash) { return static_cast<std::uint32_t>(hash >> 32U) | 1U; }
    std::size_t Mask() const { return m_places.size() - 1; } // The size is a power of two.
    std::size_t Next(std::size_t at) const { return (at + 1) & Mask(); }

    template <typename IsMeant>
    std::size_t Search(std::uint64_t hash, const IsMeant& isMeant) const
    {
        if (m_places.empty())
            return kNowhere;
        const std::uint32_t tag = Tag(hash);
        std::size_t at = hash & Mask();
        for (; m_places[at].tag != 0; at = Next(at))
            if (m_places[at].tag == tag && isMeant(m_places[at].item))
                return at;
        return kNowhere;
    }

    void Put(Place place)
    {
        std::size_t at = place.low & Mask();
        while (m_places[at].tag != 0)
            at = Next(at);
        m_places[at] = std::move(place);
    }

    void Grow()
    {
        constexpr std::size_t kFirst = 8;
        Places places(m_places.empty() ? kFirst : 2 * m_places.size());
        m_places.swap(places);
        for (Place& place : places)
            if (place.tag != 0)
                Put(std::move(place));
    }

    Places m_places;
    std::size_t m_count = 0;
};

} // namespace ruvenmark
