#include "aprs/text.h"
#include "devices/log_line.h"

#include <gtest/gtest.h>

#include <string>

namespace ruvenmark {
namespace {

constexpr std::string_view kPacket = "N0AAA-9>APRS42,WIDE1-1:>Hi";

// Each would file its line as garbage.
TEST(LogLine, LeavesOutWhatLogsPutInFront)
{
    for (const std::string stamp :
         {"2023-12-24 12:07:19.102 N0PORT-1  R", "2023-12-24 12:07:19.102 APRSIS    R",
          "2023-12-24 12:07:19 UTC:", "2023-12-24T12:07:19Z", "2023/12/24 12:07", "24.12.2023 12:07:19:", "12:07:19",
          "[0.3]", "[ig]", "[2023-12-24 12:07:19]", "[0] 12:07:19", "1703419639", "1703419639.102"}) {
        const std::string line = stamp + ' ' + std::string(kPacket);
        const LogLine log(line);
        EXPECT_EQ(log.Packet(), kPacket) << line;
        EXPECT_EQ(log.Stamp(), stamp);
        EXPECT_EQ(LikelyCall(line), "N0AAA-9");
    }
}

// A line that is no packet must come whole to whoever looks for its fault, and a call must not be taken for a stamp.
TEST(LogLine, LeavesOtherLinesAsTheyAre)
{
    for (const std::string line :
         {"N0AAA-9>APRS42,WIDE1-1:>Hi", "2E0AAA>APRS42:>Hi", "1703419639>APRS42:>Hi", "# 12:07:19 N0AAA>APRS42:>Hi",
          "at 12:07 N0AAA>APRS42:>Hi", "2 N0AAA>APRS42:>Hi", "12:07:19 heard N0AAA>APRS42:>Hi",
          "12:07:19 A B C D E N0AAA>APRS42:>Hi", "12:07:19 no packet", "12:07:19", "[0.3]", "[", "", " N0AAA>APRS42:>x",
          "12:07:19 1234567890>APRS42:>Hi"}) {
        const LogLine log(line);
        EXPECT_EQ(log.Packet(), line);
        EXPECT_EQ(log.Packet().data(), line.data()) << "copied: " << line;
        EXPECT_TRUE(log.Stamp().empty());
        EXPECT_LE(LikelyCall(line).size(), line.size());
    }
}

TEST(LogLine, ReadsBackBytesThatDoNotPrint)
{
    const auto read = [](const std::string& text) { return std::string(LogLine("N0AAA>APRS42:" + text).Packet()); };
    const std::string head = "N0AAA>APRS42:";
    EXPECT_EQ(read("a<0x1c>b<0X1c><0xFf>"), head + "a\x1c"
                                                   "b<0X1c>\xff");
    EXPECT_EQ(read("<0x0d>"), head + '\r');
    EXPECT_EQ(read("<0x1"), head + "<0x1");
    EXPECT_EQ(read("<0x1g><0x1cc><0x1c"), head + "<0x1g><0x1cc><0x1c");
    // Up to the longest packet there is; what is longer stays, to be refused as it was read.
    std::string longest = "<0x20>";
    longest.resize(longest.size() + aprs::kMaxLine - head.size() - 1, 'x');
    EXPECT_EQ(read(longest).size(), aprs::kMaxLine);
    EXPECT_EQ(read(longest + 'x'), head + longest + 'x');
}

} // namespace
} // namespace ruvenmark
