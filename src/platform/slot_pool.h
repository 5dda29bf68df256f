#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
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
    SlotRef Add(Value value)
    {
        std::uint32_t slot = 0;
        if (m_free.empty()) {
            slot = static_cast<std::uint32_t>(m_slots.size());
            m_slots.emplace_back();
        } else {
            slot = m_free.back();
            m_free.pop_back();
        }
        m_slots[slot].value = std::move(value);
        m_slots[slot].id = ++m_lastId;
        ++m_count;
        return {slot, m_lastId};
    }

    Value* Find(SlotRef ref) { return Holds(ref) ? &m_slots[ref.slot].value : nullptr; }
    const Value* Find(SlotRef ref) const { return Holds(ref) ? &m_slots[ref.slot].value : nullptr; }

    void Remove(SlotRef ref)
    {
        if (!Find(ref))
            return;
        m_slots[ref.slot] = Slot();
        m_free.push_back(ref.slot);
        --m_count;
    }

    void Clear()
    {
        m_slots.clear();
        m_free.clear();
        m_count = 0;
    }

    std::size_t Count() const { return m_count; }
    std::size_t SlotCount() const { return m_slots.size(); }
    // An empty reference for a slot that holds nothing.
    SlotRef RefAt(std::size_t slot) const { return {static_cast<std::uint32_t>(slot), m_slots[slot].id}; }
    Value* At(std::size_t slot) { return m_slots[slot].id != 0 ? &m_slots[slot].value : nullptr; }
    const Value* At(std::size_t slot) const { return m_slots[slot].id != 0 ? &m_slots[slot].value : nullptr; }

private:
    struct Slot {
        Value value{};
        std::uint64_t id = 0;
    };

    bool Holds(SlotRef ref) const { return ref.id != 0 && ref.slot < m_slots.size() && m_slots[ref.slot].id == ref.id; }

    std::deque<Slot> m_slots;
    std::vector<std::uint32_t> m_free;
    std::uint64_t m_lastId = 0;
    std::size_t m_count = 0;
};

} // namespace ruvenmark
