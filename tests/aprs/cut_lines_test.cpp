#include "decoded.h"
#include "packet_mix.h"

#include <memory>

namespace ruvenmark::aprs {
namespace {

// Copies to a block of exactly the line's size, so that a sanitizer sees any look behind its end.
Refusal DecodeExactly(std::string_view line)
{
    const auto block = std::make_unique<char[]>(line.size());
    std::copy(line.begin(), line.end(), block.get());
    return Decode({block.get(), line.size()}).refusal;
}

TEST(CutLines, EveryLengthOfEveryKindIsRead)
{
    for (const std::string& line : MakePacketMix(400, 7)) {
        for (std::size_t size = 0; size < line.size(); ++size) {
            DecodeExactly(std::string_view(line).substr(0, size));
            // The payload cut at its front: the same bytes at places where others are expected.
            DecodeExactly("N0AAA>APRS42:" + line.substr(size));
        }
        EXPECT_NE(DecodeExactly(line), Refusal::NoPayload) << line;
    }
}

TEST(CutLines, AnyByteAtAnyPlace)
{
    for (const std::string& line : MakePacketMix(40, 11)) {
        for (std::size_t at = 0; at < line.size(); ++at) {
            for (const char byte : {'\0', '\n', ' ', '!', '}', '|', '\x7f', '\xff'}) {
                std::string broken = line;
                broken[at] = byte;
                DecodeExactly(broken);
            }
        }
    }
}

} // namespace
} // namespace ruvenmark::aprs
