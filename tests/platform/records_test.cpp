#include "platform/records.h"
#include "support/doubles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

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
