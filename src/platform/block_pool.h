#pragma once

#include "platform/memory_block.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ruvenmark {

// Values of one type, made side by side in blocks. Each stays where it is, and lives as long as the pool.
template <typename Value>
class BlockPool {
public:
    BlockPool() = default;
    BlockPool(const BlockPool&) = delete;
    BlockPool& operator=(const BlockPool&) = delete;
    ~BlockPool()
    {
        for (const Block& block : m_blocks) {
            for (std::size_t i = 0; i < block.made; ++i)
                block.values[i].~Value();
            ReturnBlock(block.values, block.room * sizeof(Value));
        }
    }

    Value& Make()
    {
        if (m_blocks.empty() || m_blocks.back().made == m_blocks.back().room)
            AddBlock();
        Block& block = m_blocks.back();
        Value& value = *new (block.values + block.made) Value();
        ++block.made;
        ++m_made;
        return value;
    }

private:
    struct Block {
        Value* values;
        std::size_t made, room;
    };
    static_assert(alignof(Value) <= kBlockAlignment);

    static constexpr std::size_t kSmallestBlock = 32, kLargestBlock = kLargePage / sizeof(Value);

    // Each block is an eighth of all before it, so that little stands unused.
    void AddBlock()
    {
        const std::size_t room = std::clamp(m_made / 8, kSmallestBlock, kLargestBlock);
        m_blocks.reserve(m_blocks.size() + 1);
        m_blocks.push_back({static_cast<Value*>(TakeBlock(room * sizeof(Value))), 0, room});
    }

    std::vector<Block> m_blocks;
    std::size_t m_made = 0;
};

} // namespace ruvenmark
