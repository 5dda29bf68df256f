#include "aprs/comment_marks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace ruvenmark::aprs {
namespace {

// Texts are looked at in blocks: a mark at a seam, or at the end of any length, must neither be missed nor made up.
TEST(CommentMarks, AreFoundAtEveryPlaceOfEveryLength)
{
    constexpr std::size_t kFront = 18; // The shortest header with a type byte and a position.
    constexpr std::pair<char, CommentMarks> kMarks[] = {
        {'=', EqualsMark}, {'|', BarMark}, {'!', BangMark}, {'}', BraceMark}, {'G', ReachMark}};
    for (std::size_t size = 4; size <= 70; ++size) {
        // Of exactly the size, so that a sanitizer sees any look beyond its ends.
        const auto line = std::make_unique<char[]>(kFront + size);
        std::fill_n(line.get(), kFront + size, 'H');
        char* const text = line.get() + kFront;
        const auto find = [&](bool bMicE) { return FindMarks({text, size}, bMicE); };
        EXPECT_EQ(find(true), NoMarks) << size;
        for (std::size_t at = 0; at < size; ++at) {
            for (const auto& [c, mark] : kMarks) {
                text[at] = c;
                EXPECT_EQ(find(true), mark) << c << at << " of " << size;
                EXPECT_EQ(find(false), c == '}' ? NoMarks : mark) << c << at << " of " << size;
            }
            text[at] = 'H';
        }
    }
}

} // namespace
} // namespace ruvenmark::aprs
