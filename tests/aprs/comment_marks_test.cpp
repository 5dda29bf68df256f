#include "aprs/comment_marks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace ruvenmark::aprs {
namespace {

// Texts are looked at in blocks: a mark at a seam, or at the end of any length, must neither be missed nor made up.
TEST(CommentMarks, AreFoundAtEveryPlaceOfEveryLength)
{
    for (std::size_t size = 0; size <= 70; ++size) {
        // Of exactly the size, so that a sanitizer sees any look behind its end.
        const auto text = std::make_unique<char[]>(size);
        std::fill_n(text.get(), size, 'x');
        const auto find = [&] { return FindMarks({text.get(), size}); };
        EXPECT_FALSE(find().bEquals || find().bBar || find().bBang || find().bBrace || find().bReach) << size;
        for (std::size_t at = 0; at < size; ++at) {
            for (const char c : {'=', '|', '!', '}', 'G'}) {
                text[at] = c;
                const CommentMarks marks = find();
                EXPECT_EQ(marks.bEquals, c == '=') << at << " of " << size;
                EXPECT_EQ(marks.bBar, c == '|') << at << " of " << size;
                EXPECT_EQ(marks.bBang, c == '!') << at << " of " << size;
                EXPECT_EQ(marks.bBrace, c == '}') << at << " of " << size;
                EXPECT_EQ(marks.bReach, c == 'G') << at << " of " << size;
            }
            text[at] = 'x';
        }
    }
}

} // namespace
} // namespace ruvenmark::aprs
