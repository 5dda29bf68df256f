#pragma once

#include "platform/memory_block.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <sanitizer/asan_interface.h>
#include <type_traits>
#include <utility>
#include <vector>

namespace ruvenmark {

// Rooms of one size, side by side in blocks. One that is returned is the next to be taken; with the last one all memory
// goes back.
class RoomPool {
public:
    explicit RoomPool(std::size_t size)
        : m_size((std::max(size, sizeof(Returned)) + alignof(Returned) - 1) / alignof(Returned) * alignof(Returned))
    {
    }
    RoomPool(const RoomPool&) = delete;
    RoomPool& operator=(const RoomPool&) = delete;
    ~RoomPool() { ReturnBlocks(); }

    void* Take()
    {
        void* room = m_returned;
        if (room) {
            ASAN_UNPOISON_MEMORY_REGION(room, m_size);
            m_returned = m_returned->next;
        } else {
            if (m_left == 0)
                AddBlock();
            --m_left;
            room = std::exchange(m_next, m_next + m_size);
        }
        ++m_out;
        return room;
    }
    void Return(void* room) noexcept
    {
        m_returned = new (room) Returned{m_returned};
        ASAN_POISON_MEMORY_REGION(room, m_size); // The sanitizer sees who still uses it.
        if (--m_out == 0)
            ReturnBlocks();
    }

private:
    struct Block {
        std::byte* begin;
        std::size_t size;
    };
    // Stands in a returned room.
    struct Returned {
        Returned* next;
    };

    // Each block is an eighth of all before it, so that little stands unused, and a large page at most.
    void AddBlock()
    {
        const std::size_t most = std::max<std::size_t>(kLargePage / m_size, 1);
        const std::size_t rooms = std::clamp<std::size_t>(m_rooms / 8, 1, most);
        const std::size_t size = rooms < most ? rooms * m_size : std::max(m_size, kLargePage);
        m_blocks.reserve(m_blocks.size() + 1);
        m_next = static_cast<std::byte*>(TakeBlock(size));
        m_blocks.push_back({m_next, size});
        m_left = rooms;
        m_rooms += rooms;
    }

    void ReturnBlocks() noexcept
    {
        for (const Block& block : m_blocks) {
            ASAN_UNPOISON_MEMORY_REGION(block.begin, block.size);
            ReturnBlock(block.begin, block.size);
        }
        m_blocks.clear();
        m_returned = nullptr;
        m_left = m_rooms = 0;
    }

    std::size_t m_size;
    std::vector<Block> m_blocks;
    Returned* m_returned = nullptr;
    std::byte* m_next = nullptr;
    std::size_t m_left = 0; // Rooms from the next one on.
    std::size_t m_rooms = 0;
    std::size_t m_out = 0;
};

// For a list of the standard library: its entries stand close together, and in large pages where they are many.
template <typename Value>
class PoolAllocator {
public:
    using value_type = Value;
    using propagate_on_container_move_assignment = std::true_type;
    using propagate_on_container_swap = std::true_type;

    PoolAllocator() = default;
    template <typename Other>
    PoolAllocator(const PoolAllocator<Other>& /*other*/) // A list of other entries has a pool of its own.
    {
    }
    PoolAllocator select_on_container_copy_construction() const { return {}; }

    Value* allocate(std::size_t /*one*/)
    {
        if (!m_pool)
            m_pool = std::make_shared<RoomPool>(sizeof(Value));
        return static_cast<Value*>(m_pool->Take());
    }
    void deallocate(Value* value, std::size_t /*one*/) noexcept { m_pool->Return(value); }
    friend bool operator==(const PoolAllocator& a, const PoolAllocator& b) { return a.m_pool == b.m_pool; }

private:
    std::shared_ptr<RoomPool> m_pool;
};

} // namespace ruvenmark
