#include "aprs/comment_marks.h"
#include "aprs/header.h"
#include "aprs/header_bits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <utility>

namespace ruvenmark::aprs {
namespace {

std::string RandomText(std::mt19937& random, std::string_view bytes, std::size_t size)
{
    std::string text;
    while (text.size() < size)
        text += bytes[random() % bytes.size()];
    return text;
}

std::string RandomHeader(std::mt19937& random)
{
    std::string header = "N0CALL-1>APRS,TE1-1*,qAC,T:";
    for (unsigned changes = random() % 4; changes > 0; --changes)
        header[random() % header.size()] = RandomText(random, "A9z-,*>:[/@`{ \xff", 1)[0];
    return header;
}

struct Told {
    Header header;
    Refusal refusal = Refusal::None;
    std::size_t infoSize = 0;
};

Told Parse(const std::string& line)
{
    Told told;
    told.infoSize = ParseHeader(line, told.header, told.refusal).size();
    return told;
}

// Short lines are read byte by byte, others by their bits: a header must mean the same to both.
TEST(Header, MeansTheSameInShortAndInLongLines)
{
    std::mt19937 random(1);
    for (int i = 0; i < 100000; ++i) {
        const std::string header = RandomHeader(random);
        const std::string shortLine = header + "x";
        const std::string longLine = header + std::string(40, 'x');
        const Told one = Parse(shortLine);
        const Told other = Parse(longLine);
        ASSERT_EQ(one.refusal, other.refusal) << header;
        ASSERT_EQ(one.header.source, other.header.source) << header;
        ASSERT_EQ(one.header.dest, other.header.dest) << header;
        ASSERT_EQ(one.header.path, other.header.path) << header;
        ASSERT_EQ(one.infoSize + (one.infoSize > 0 ? 39 : 0), other.infoSize) << header;
    }
}

#ifdef RUVENMARK_HEADER_BITS

// Of two ways to read the bits a machine takes one only, so the other could be wrong without being seen.
TEST(HeaderBits, AreTheSameFromWideAndNarrowBlocks)
{
    if (!HasWideBlocks())
        GTEST_SKIP() << "no wide blocks";
    std::string bytes;
    for (int c = 0; c < 256; ++c)
        bytes += static_cast<char>(c);
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = RandomText(random, bytes, kLeastNarrow + random() % 40);
        const HeaderBits wide = ReadWide(text.data(), text.size());
        const HeaderBits narrow = ReadNarrow(text.data(), text.size());
        ASSERT_EQ(wide.call, narrow.call);
        ASSERT_EQ(wide.comma, narrow.comma);
        ASSERT_EQ(wide.star, narrow.star);
        ASSERT_EQ(wide.colon, narrow.colon);
        ASSERT_EQ(wide.dash, narrow.dash);
    }
}

#endif

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
