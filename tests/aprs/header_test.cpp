#include "aprs/comment_marks.h"
#include "aprs/destination_device.h"
#include "aprs/device_table.h"
#include "aprs/header.h"
#include "aprs/header_bits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <tuple>
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

// What is read, and where the payload begins.
auto Parse(const std::string& line)
{
    Header header;
    Refusal refusal = Refusal::None;
    const std::size_t size = ParseHeader(line, header, refusal).size();
    return std::tuple(refusal, std::string(header.source), std::string(header.dest), std::string(header.path),
                      size == 0 ? 0 : line.size() - size);
}

// Short lines are read byte by byte, others by their bits: a header must mean the same to both.
TEST(Header, MeansTheSameInShortAndInLongLines)
{
    std::mt19937 random(1);
    for (int i = 0; i < 100000; ++i) {
        const std::string header = RandomHeader(random);
        ASSERT_EQ(Parse(header + "x"), Parse(header + std::string(40, 'x'))) << header;
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
        const auto bits = [](const HeaderBits& read) {
            return std::tuple(read.call, read.comma, read.star, read.colon, read.dash);
        };
        ASSERT_EQ(bits(ReadWide(text.data(), text.size())), bits(ReadNarrow(text.data(), text.size())));
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

// A destination that the pattern stands for, as far from its letters as it may be.
std::string Sample(std::string_view pattern)
{
    std::string sample;
    for (const char c : pattern)
        if (c != '*')
            sample += c == '?' ? '~' : c == 'n' ? '0' : c;
    return sample;
}

// The look-up searches by prefix: a table out of order hides devices without a word.
TEST(DestinationDevice, EveryPatternIsFoundByWhatItStandsFor)
{
    const auto devices = DestinationDevices();
    ASSERT_GT(devices.size(), 300U);
    for (const DestinationDevice& device : devices) {
        EXPECT_EQ(device.pattern.substr(0, device.prefixSize).find_first_of("?n*"), std::string_view::npos);
        EXPECT_EQ(DestinationDeviceName(Sample(device.pattern)), device.name) << device.pattern;
    }
}

// A byte short of its pattern, or one more, is none.
TEST(DestinationDevice, TheLongestBeginningWins)
{
    EXPECT_EQ(DestinationDeviceName("AP123U"), "Painter Engineering: uSmartDigi Digipeater");
    EXPECT_EQ(DestinationDeviceName("APAF12-11"), "AFilter");
    for (const char* experimental : {"APZ", "APZ187"})
        EXPECT_EQ(DestinationDeviceName(experimental), "Experimental");
    for (const char* digi : {"APZ18", "APZ186"})
        EXPECT_EQ(DestinationDeviceName(digi), "IW3FQG UIdigi");
    for (const char* none : {"AP12AU", "APAF1", "APAF123", "apaf12", "", "-7"})
        EXPECT_EQ(DestinationDeviceName(none), "") << none;
}

} // namespace
} // namespace ruvenmark::aprs
