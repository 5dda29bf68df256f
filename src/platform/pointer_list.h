#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <span>

namespace ruvenmark {

// A list of pointers that takes one pointer while it is empty: most nodes of a tree have no children.
template <typename Value>
class PointerList {
public:
    PointerList() = default;
    PointerList(const PointerList&) = delete;
    PointerList& operator=(const PointerList&) = delete;
    ~PointerList() { ::operator delete(m_block); }

    std::size_t Count() const { return m_block ? m_block->count : 0; }
    std::span<Value* const> All() const { return {Values(), Count()}; }
    std::span<Value*> All() { return {Values(), Count()}; }

    void Insert(std::size_t row, Value* value)
    {
        if (!m_block || m_block->count == m_block->capacity)
            Grow();
        Value** values = Values();
        std::copy_backward(values + row, values + m_block->count, values + m_block->count + 1);
        values[row] = value;
        ++m_block->count;
    }
    void Erase(std::size_t row)
    {
        Value** values = Values();
        std::copy(values + row + 1, values + m_block->count, values + row);
        --m_block->count;
    }

private:
    struct Head {
        std::uint32_t count, capacity;
    };
    static_assert(sizeof(Head) % alignof(Value*) == 0);

    // The pointers stand right behind the head.
    Value** Values() const { return m_block ? reinterpret_cast<Value**>(m_block + 1) : nullptr; }

    // To two, six, fourteen and on: with the head, what the heap gives anyway.
    void Grow()
    {
        const std::size_t count = Count();
        const std::size_t capacity = 2 * (m_block ? m_block->capacity + std::size_t{1} : 1);
        if (capacity > std::numeric_limits<std::uint32_t>::max())
            throw std::bad_alloc();
        void* block = ::operator new(sizeof(Head) + capacity * sizeof(Value*));
        Head* head = new (block) Head{static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(capacity)};
        if (m_block)
            std::memcpy(head + 1, m_block + 1, count * sizeof(Value*));
        ::operator delete(m_block);
        m_block = head;
    }

    Head* m_block = nullptr;
};

} // namespace ruvenmark
