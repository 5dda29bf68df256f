#include "devices/ax25.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;

// An address as it goes on the air: each byte a bit to the left.
std::string Address(std::string_view call, unsigned last)
{
    std::string bytes;
    for (std::size_t i = 0; i < 6; ++i)
        bytes += static_cast<char>((i < call.size() ? static_cast<unsigned char>(call[i]) : unsigned{' '}) << 1U);
    return bytes + static_cast<char>(last);
}

const std::string kDest = Address("APRS", 0xE0), kSource = Address("W1AW", 0x60 | 7 << 1), kUi = "\x03\xF0"s;

std::string Ended(std::string frame)
{
    frame.back() = static_cast<char>(frame.back() | 1);
    return frame;
}

// Whoever repeated a packet is told by its last star; the marks of source and destination are no such thing.
TEST(Ax25, ReadsAddressesMarksAndEveryByte)
{
    EXPECT_EQ(ReadUiFrame(Ended(kDest + kSource) + kUi + ">Hi"), "W1AW-7>APRS:>Hi");
    EXPECT_EQ(ReadUiFrame(Ended(Address("APRS", 0x60) + Address("W1AW", 0xE0)) + "\x13\xF0>Hi"s), "W1AW>APRS:>Hi");
    const std::string used = Address("N1DIG", 0xE0 | 15 << 1), free = Address("WIDE2", 0x60 | 1 << 1);
    EXPECT_EQ(ReadUiFrame(Ended(kDest + kSource + free) + kUi), "W1AW-7>APRS,WIDE2-1:");
    EXPECT_EQ(ReadUiFrame(Ended(kDest + kSource + used + used + free) + kUi),
              "W1AW-7>APRS,N1DIG-15,N1DIG-15*,WIDE2-1:");
    std::string every;
    for (int c = 0; c < 256; ++c)
        every += static_cast<char>(c);
    EXPECT_EQ(ReadUiFrame(Ended(kDest + kSource) + kUi + every), "W1AW-7>APRS:" + every);
}

// Other traffic shares the channel, and noise may pass for a frame.
TEST(Ax25, TakesNothingElseForAPacket)
{
    const std::string whole = Ended(kDest + kSource + Address("WIDE2", 0x62)) + kUi;
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(ReadUiFrame(whole.substr(0, size))) << size;
    EXPECT_FALSE(ReadUiFrame(Ended(kDest + kSource) + "\x3F\xF0"s));     // Connect.
    EXPECT_FALSE(ReadUiFrame(Ended(kDest + kSource) + "\x00\xF0text"s)); // Information of a connection.
    EXPECT_FALSE(ReadUiFrame(Ended(kDest + kSource) + "\x03\xCFtext"s)); // Of a network.
    EXPECT_FALSE(ReadUiFrame(Ended(kDest) + kUi + "text"));
    for (const std::string& call : {"A>B"s, "A:B"s, "A B"s, " AB"s, ""s, "A\rB"s, "A,B"s, "A*"s})
        EXPECT_FALSE(ReadUiFrame(Ended(kDest + Address(call, 0x60)) + kUi + "text")) << call;
    std::string chain = kDest + kSource;
    for (int i = 0; i < 9; ++i)
        chain += Address("WIDE1", 0x60);
    EXPECT_FALSE(ReadUiFrame(Ended(chain) + kUi));
}

TEST(Ax25, MakesFramesThatReadAsTheyWereAskedFor)
{
    EXPECT_EQ(MakeUiFrame("W1AW-7", "APRS", "", ">Hi"), Ended(kDest + kSource) + kUi + ">Hi");
    EXPECT_EQ(ReadUiFrame(MakeUiFrame("w1aw-15", "aprs", "wide1-1, WIDE2-2", "a\0b\xFF"s)),
              "W1AW-15>APRS,WIDE1-1,WIDE2-2:a\0b\xFF"s);
    EXPECT_TRUE(ReadUiFrame(MakeUiFrame("A", "B", "C,D,E,F,G,H,I,J", std::string(256, 'x'))));
    for (const std::string& call : {""s, "-1"s, "TOOLONG"s, "W1AW-16"s, "W1AW-"s, "W1AW-1-1"s, "W AW"s, "W1\xC3W"s}) {
        EXPECT_THROW(MakeUiFrame(call, "APRS", "", "x"), Failure) << call;
        EXPECT_THROW(MakeUiFrame("W1AW", call, "", "x"), Failure) << call;
    }
    EXPECT_THROW(MakeUiFrame("W1AW", "APRS", "WIDE1-1,W/DE", "x"), Failure);
    EXPECT_THROW(MakeUiFrame("W1AW", "APRS", "A,B,C,D,E,F,G,H,I", "x"), Failure);
    EXPECT_THROW(MakeUiFrame("W1AW", "APRS", "", std::string(257, 'x')), Failure);
}

} // namespace
} // namespace ruvenmark
