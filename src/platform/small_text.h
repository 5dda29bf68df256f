#pragma once

#include "platform/expect_memory.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace ruvenmark {

// A text that mostly is short: up to 29 bytes stand in the object, longer ones in a block of their own.
class SmallText {
public:
    SmallText() = default;
    SmallText(const SmallText&) = delete;
    SmallText& operator=(const SmallText&) = delete;
    ~SmallText() { Drop(); }

    std::string_view View() const
    {
        if (!IsOutside())
            return {m_inside.data(), m_size};
        const Block block = Outside();
        return {block.text, block.size};
    }
    void Expect() const // A long one will be needed; the object itself is at hand.
    {
        if (IsOutside())
            ExpectMemory(Outside().text, Outside().size);
    }
    void Set(std::string_view text); // May be a part of this text.

private:
    static constexpr std::size_t kInside = 29;
    static constexpr unsigned char kOutside = 255;
    struct Block {
        char* text;
        std::size_t size, capacity;
    };

    bool IsOutside() const { return m_size == kOutside; }
    // The inside holds it byte by byte: the object needs no alignment.
    Block Outside() const
    {
        Block block{};
        std::memcpy(&block, m_inside.data(), sizeof(block));
        return block;
    }
    void PutOutside(const Block& block);
    void Drop();

    std::array<char, kInside> m_inside{};
    unsigned char m_size = 0;
};

} // namespace ruvenmark
