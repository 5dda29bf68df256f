#include "platform/line_stream.h"
#include "platform/records.h"
#include "platform/text.h"
#include "support/doubles.h"

#include <gmock/gmock.h>

#include <deque>
#include <random>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

// Those that are not empty. On the way, that a look ahead saw is the line that came, but for what of it is not kept.
std::vector<std::string> LinesOf(std::vector<std::string> pieces)
{
    MemoryStream bytes(std::move(pieces), std::nullopt);
    LineStream stream(bytes);
    std::vector<std::string> lines;
    std::deque<std::string> seen;
    for (;;) {
        const auto step = stream.Next({});
        if (step == LineStream::Step::End)
            return lines;
        if (step == LineStream::Step::Waiting)
            continue;
        if (!seen.empty()) {
            EXPECT_EQ(seen.front().substr(0, LineStream::kMaxLine), stream.Line());
            seen.pop_front();
        }
        while (const auto ahead = stream.Ahead())
            seen.emplace_back(*ahead);
        EXPECT_LE(seen.size(), LineLookAhead::kMostLines);
        if (!stream.Line().empty())
            lines.emplace_back(stream.Line());
    }
}

// Whatever a pipe deals out, down to single bytes and to nothing for a while, the lines are those of the whole text.
TEST(LineStream, LinesAreTheSameHoweverTheyCome)
{
    std::mt19937 random(1);
    for (int run = 0; run < 300; ++run) {
        std::string text = run % 3 == 0 ? "\xEF\xBB\xBF" : "";
        const std::size_t mark = text.size();
        for (std::size_t length = random() % 40; length > 0; --length)
            text += "ab\r\n\0"[random() % 5];
        std::vector<std::string> pieces;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t length = random() % 4;
            pieces.push_back(text.substr(at, length));
            at += pieces.back().size();
        }
        std::vector<std::string> expected;
        for (const auto line : Lines(std::string_view(text).substr(mark)))
            if (!line.empty())
                expected.emplace_back(line);
        ASSERT_EQ(LinesOf(pieces), expected) << run;
    }
}

// A reader that stops looking ahead is no faster than one that never did.
TEST(LineStream, LooksSomeLinesAheadAndKeepsThatLead)
{
    MemoryStream bytes({"1\n2\r\n3\n4\n5\n6\n7\n8\n9\n10\n"}, std::nullopt);
    LineStream stream(bytes);
    std::string seen;
    for (int line = 0; line < 3; ++line) {
        stream.Next({});
        while (const auto ahead = stream.Ahead())
            seen += std::string(*ahead) + ' ';
        seen += '|';
    }
    EXPECT_EQ(seen, "2 3 4 5 6 |7 |8 |");
}

TEST(LineStream, ALineOfAnyLengthIsOneLineInBoundedMemory)
{
    const std::string begin(LineStream::kMaxLine, 'x');
    for (const std::size_t more : {1U, 1000U, 300000U, 2000000U}) {
        const std::string rest(more, 'y');
        EXPECT_EQ(LinesOf({"a\n" + begin + rest + "\nb\n"}), (std::vector<std::string>{"a", begin, "b"})) << more;
        EXPECT_EQ(LinesOf({begin, rest, "z\r", "\nb"}), (std::vector<std::string>{begin, "b"})) << more;
        EXPECT_EQ(LinesOf({begin + rest}), (std::vector<std::string>{begin})) << more;
    }
}

TEST(Records, AreTheUsedLinesSplitAtTheDelimiter)
{
    const auto records = [](std::string text, std::string_view delimiter = ":") {
        MemoryFiles files;
        files.texts["/f"] = std::move(text);
        return ReadRecords(files, "/f", delimiter);
    };
    EXPECT_THAT(records("\r\na:b\r\n\r\nc\n"), ElementsAre(ElementsAre("a", "b"), ElementsAre("c")));
    EXPECT_THAT(records("a\0b\r\nc\r\n\0\r\n"s), ElementsAre(ElementsAre("c"))); // A NUL takes its line along.
    EXPECT_THAT(records(":a::"), ElementsAre(ElementsAre("", "a", "", "")));
    EXPECT_THAT(records("a::b:c", "::"), ElementsAre(ElementsAre("a", "b:c")));
    EXPECT_THAT(records(" \r\na\rb"), ElementsAre(ElementsAre(" "), ElementsAre("a\rb"))); // Neither is empty nor two.
    MemoryFiles files;
    EXPECT_THAT(ReadRecords(files, "/missing", ":"), testing::IsEmpty());
}

} // namespace
} // namespace ruvenmark
