#include "aprs/header.h"
#include "aprs/header_bits.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

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

} // namespace
} // namespace ruvenmark::aprs
