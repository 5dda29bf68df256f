#pragma once

#include "platform/expect_memory.h"
#include "platform/room_pool.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace ruvenmark {

// Names a value of a SlotPool for ever: ids are never given twice.
struct SlotRef {
    std::uint32_t slot = 0;
    std::uint64_t id = 0; // 0 names nothing.
    friend bool operator==(const SlotRef&, const SlotRef&) = default;
};

// Values that stay at their address, found by references that notice when their value is gone.
template <typename Value>
class SlotPool {
public:
    SlotPool() = default;
    SlotPool(const SlotPool&) = delete;
    SlotPool& operator=(const SlotPool&) = delete;
    ~SlotPool() { Clear(); }

    SlotRef Add(Value value)
    {
        std::uint32_t slot = 0;
        if (m_free.empty()) {
            if (m_slotCount == m_blocks.size() * kBlock)
                AddBlock();
            slot = static_cast<std::uint32_t>(m_slotCount++);
        } else {
            slot = m_free.back();
            m_free.pop_back();
        }
        SlotAt(slot).value = std::move(value);
        SlotAt(slot).id = ++m_lastId;
        ++m_count;
        return {slot, m_lastId};
    }

    Value* Find(SlotRef ref) { return Holds(ref) ? &SlotAt(ref.slot).value : nullptr; }
    const Value* Find(SlotRef ref) const { return Holds(ref) ? &SlotAt(ref.slot).value : nullptr; }

    void Remove(SlotRef ref)
    {
        if (!Find(ref))
            return;
        if (m_count == 1) {
            Clear();
            return;
        }
        SlotAt(ref.slot) = Slot();
        m_free.push_back(ref.slot);
        --m_count;
    }

    // Gives the memory back too; ids go on, so that references to what was there find nothing.
    // Also what removing the last value does.
    void Clear()
    {
        for (Slot* block : m_blocks) {
            std::destroy_n(block, kBlock);
            m_rooms.Return(block);
        }
        m_blocks.clear();
        m_slotCount = 0;
        m_free = {};
        m_count = 0;
    }

    // The value in the slot will be needed.
    void Expect(std::size_t slot) const
    {
        if (slot < m_slotCount)
            ExpectMemory(&SlotAt(slot), sizeof(Slot));
    }

    std::size_t Count() const { return m_count; }
    std::size_t SlotCount() const { return m_slotCount; }
    // An empty reference for a slot that holds nothing.
    SlotRef RefAt(std::size_t slot) const { return {static_cast<std::uint32_t>(slot), SlotAt(slot).id}; }
    // Nothing for such a slot, and for one beyond the last.
    Value* At(std::size_t slot) { return IsTaken(slot) ? &SlotAt(slot).value : nullptr; }
    const Value* At(std::size_t slot) const { return IsTaken(slot) ? &SlotAt(slot).value : nullptr; }

private:
    struct Slot {
        Value value{};
        std::uint64_t id = 0;
    };

    bool IsTaken(std::size_t slot) const { return slot < m_slotCount && SlotAt(slot).id != 0; }
    bool Holds(SlotRef ref) const { return ref.id != 0 && ref.slot < m_slotCount && SlotAt(ref.slot).id == ref.id; }

    void AddBlock()
    {
        m_blocks.reserve(m_blocks.size() + 1);
        m_blocks.push_back(static_cast<Slot*>(m_rooms.Take()));
        std::uninitialized_value_construct_n(m_blocks.back(), kBlock);
    }

    static constexpr std::size_t kBlock = 256;
    Slot& SlotAt(std::size_t slot) { return m_blocks[slot / kBlock][slot % kBlock]; }
    const Slot& SlotAt(std::size_t slot) const { return m_blocks[slot / kBlock][slot % kBlock]; }

    RoomPool m_rooms{kBlock * sizeof(Slot)};
    std::vector<Slot*> m_blocks;
    std::size_t m_slotCount = 0;
    std::vector<std::uint32_t> m_free;
    std::uint64_t m_lastId = 0;
    std::size_t m_count = 0;
};

} // namespace ruvenmark
