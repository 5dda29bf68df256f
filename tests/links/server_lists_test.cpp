#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    TestProgram p(false);
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
    TestProgram p;
    p.main.serverLists.ServerList.Set("a", "a");
    p.main.serverLists.PortList.Set("10152", "10152");
    p.main.frmImport.iFLDelay = 3;
    p.files.FailWrite(1);
    ASSERT_EQ(StopMainWindow(p.main), StopResult::StoppedWithLoss);
    EXPECT_THAT(p.notices.lines,
                ElementsAre("The lists of servers could not be saved: cannot write /program/servers.txt"));
    EXPECT_EQ(p.files.texts["/program/ports.txt"], "10152");
    EXPECT_EQ(p.store.Get("FLDelay", ""), "3");
    EXPECT_EQ(p.main.abandoned.Count(), 1U);
}

// A list that nobody changed is not the program's to rewrite: it may hold what the program does not keep.
TEST(ServerLists, AListThatDidNotChangeIsLeftAlone)
{
    TestProgram p(false);
    p.files.texts["/program/servers.txt"] = "[2001:db8::1]:14580\n\n";
    p.files.texts["/program/ports.txt"] = "14580";
    p.files.unreadable.insert("/program/ports.txt");
    StartMainWindow(p.main);
    p.files.texts["/program/servers.txt"] += "by.another";
    p.main.serverLists.PortList.Set("10152", "10152");
    ASSERT_EQ(StopMainWindow(p.main), StopResult::StoppedWithLoss);
    EXPECT_EQ(p.files.texts["/program/servers.txt"], "[2001:db8::1]:14580\n\nby.another");
    EXPECT_EQ(p.files.texts["/program/ports.txt"], "14580"); // What could not be read is not lost.
    EXPECT_EQ(p.main.abandoned.Count(), 1U);
}

} // namespace
} // namespace ruvenmark
