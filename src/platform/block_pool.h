#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <vector>

namespace ruvenmark {

// Memory for many values, at the start of a cache line.
inline constexpr std::size_t kBlockAlignment = 64;
void* TakeBlock(std::size_t size);
void ReturnBlock(void* block);

// Values of one type, made side by side in blocks; each stays where it is. Whoever makes a value drops it: the pool
// only keeps the memory.
template <typename Value>
class BlockPool {
public:
    BlockPool() = default;
    BlockPool(const BlockPool&) = delete;
    BlockPool& operator=(const BlockPool&) = delete;
    ~BlockPool()
    {
        for (void* block : m_blocks)
            ReturnBlock(block);
    }

    Value& Make() { return *new (TakeSlot()) Value(); }
    void Drop(Value& value)
    {
        value.~Value();
        m_free = new (&value) Slot{m_free};
    }

private:
    // What stands in the place of a value that is gone.
    struct Slot {
        Slot* next;
    };
    static_assert(sizeof(Value) >= sizeof(Slot) && alignof(Value) >= alignof(Slot));
    static_assert(alignof(Value) <= kBlockAlignment);

    static constexpr std::size_t kSmallestBlock = 32, kLargestBlock = 32768; // Values.

    void* TakeSlot()
    {
        if (m_free) {
            Slot* slot = m_free;
            m_free = slot->next;
            return slot;
        }
        if (m_left == 0)
            AddBlock();
        --m_left;
        void* place = m_next;
        m_next += sizeof(Value);
        return place;
    }

    // Each block is an eighth of all before it, so that little stands unused.
    void AddBlock()
    {
        const std::size_t count = std::clamp(m_made / 8, kSmallestBlock, kLargestBlock);
        m_blocks.reserve(m_blocks.size() + 1);
        void* block = TakeBlock(count * sizeof(Value));
        m_blocks.push_back(block);
        m_next = static_cast<std::byte*>(block);
        m_left = count;
        m_made += count;
    }

    std::vector<void*> m_blocks;
    Slot* m_free = nullptr;
    std::byte* m_next = nullptr;
    std::size_t m_left = 0;
    std::size_t m_made = 0;
};

} // namespace ruvenmark
