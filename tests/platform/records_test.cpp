#include "platform/records.h"
#include "support/doubles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TextTable Records(std::string text, std::string_view delimiter = ":")
{
    MemoryFiles files;
    files.texts["/f"] = std::move(text);
    return ReadRecords(files, "/f", delimiter);
}

TEST(Records, AreTheUsedLinesSplitAtTheDelimiter)
{
    EXPECT_THAT(Records("a:b\r\nc"), ElementsAre(ElementsAre("a", "b"), ElementsAre("c")));
    EXPECT_THAT(Records("a\nb\n"), ElementsAre(ElementsAre("a"), ElementsAre("b"))); // LF alone ends a line too.
    EXPECT_THAT(Records("\r\n\r\na\r\n\r\n"), ElementsAre(ElementsAre("a")));
    EXPECT_THAT(Records("a\0b\r\nc\r\n\0\r\n"s), ElementsAre(ElementsAre("c"))); // A NUL takes its line along.
    EXPECT_THAT(Records(":a::"), ElementsAre(ElementsAre("", "a", "", "")));
    EXPECT_THAT(Records("a::b:c", "::"), ElementsAre(ElementsAre("a", "b:c")));
    EXPECT_THAT(Records(" \r\n"), ElementsAre(ElementsAre(" "))); // A blank is no empty line.
    EXPECT_THAT(Records("a\rb"), ElementsAre(ElementsAre("a\rb")));
    EXPECT_THAT(Records(""), IsEmpty());
    EXPECT_THAT(Records("\r\n\r\n\n"), IsEmpty());
    MemoryFiles files;
    EXPECT_THAT(ReadRecords(files, "/missing", ":"), IsEmpty());
}

} // namespace
} // namespace ruvenmark
