#include "platform/small_text.h"

#include <cstring>

namespace ruvenmark {

void SmallText::PutOutside(const Block& block)
{
    static_assert(sizeof(block) <= kInside);
    std::memcpy(m_inside.data(), &block, sizeof(block));
    m_size = kOutside;
}

void SmallText::Set(std::string_view text)
{
    if (IsOutside()) {
        Block block = Outside();
        if (text.size() <= block.capacity && text.size() > kInside) {
            std::memmove(block.text, text.data(), text.size());
            block.size = text.size();
            PutOutside(block);
            return;
        }
    }
    if (text.size() > kInside) {
        const Block block{new char[text.size()], text.size(), text.size()};
        std::memcpy(block.text, text.data(), text.size());
        Drop();
        PutOutside(block);
        return;
    }
    std::array<char, kInside> inside{};
    if (!text.empty())
        std::memcpy(inside.data(), text.data(), text.size());
    Drop();
    m_inside = inside;
    m_size = static_cast<unsigned char>(text.size());
}

void SmallText::Drop()
{
    if (IsOutside())
        delete[] Outside().text;
    m_size = 0;
}

} // namespace ruvenmark
