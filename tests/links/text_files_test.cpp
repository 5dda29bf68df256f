#include "links/text_files.h"
#include "platform/failure.h"
#include "support/program.h"

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

std::vector<std::string> Keys(const Dictionary<std::string>& list)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : list) {
        EXPECT_EQ(key, value);
        keys.push_back(key);
    }
    return keys;
}

TEST(ServerLists, EntriesAreCutAtTheirColonAndKeepTheirPlace)
{
    Program p(false);
    p.files.texts["/program/servers.txt"] = "b.example:14580\r\na.example\r\n\r\nb.example\r\n";
    p.files.texts["/program/filters.txt"] = "r/48/11/50 t/m\n"; // No ports.txt: the next file is read all the same.
    StartMainWindow(p.main);
    EXPECT_THAT(Keys(p.main.serverLists.ServerList), ElementsAre("b.example", "a.example"));
    EXPECT_THAT(Keys(p.main.serverLists.PortList), IsEmpty());
    EXPECT_THAT(Keys(p.main.serverLists.ServerFilterList), ElementsAre("r/48/11/50 t/m"));

    p.main.serverLists.ServerList.Set("c:d", "c:d"); // Lives with its colon until the next start.
    p.files.texts["/program/ports.txt"] = "10152";   // An empty list leaves its file as it is.
    p.main.serverLists.ServerFilterList.Clear();
    ASSERT_EQ(StopMainWindow(p.main), StopResult::Stopped);
    EXPECT_EQ(p.files.texts["/program/servers.txt"], "b.example\r\na.example\r\nc:d");
    EXPECT_EQ(p.files.texts["/program/ports.txt"], "10152");
    EXPECT_EQ(p.files.texts["/program/filters.txt"], "r/48/11/50 t/m\n");
}

TEST(ServerLists, AFileThatCannotBeWrittenCostsNothingElse)
{
    Program p;
    p.main.serverLists.ServerList.Set("a", "a");
    p.main.serverLists.PortList.Set("10152", "10152");
    p.main.frmTcp.sPrimaryServer = "a";
    p.main.frmImport.iFLDelay = 3;
    p.files.FailWrite(1);
    ASSERT_EQ(StopMainWindow(p.main), StopResult::StoppedWithLoss);
    EXPECT_THAT(p.notices.lines,
                ElementsAre("The lists of servers could not be saved: cannot write /program/servers.txt"));
    EXPECT_EQ(p.files.texts["/program/ports.txt"], "10152");
    EXPECT_EQ(p.store.Get("PrimaryServer", ""), "a");
    EXPECT_EQ(p.store.Get("FLDelay", ""), "3");
    EXPECT_EQ(p.main.abandoned.Count(), 1U);
}

} // namespace
} // namespace ruvenmark
