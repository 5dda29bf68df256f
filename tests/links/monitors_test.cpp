#include "links/monitors.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::IsEmpty;

TEST(Monitors, EachChannelHasItsOwnAndOnlyRfHasThePacketLine)
{
    TestProgram p;
    p.Sink(Channel::RF).ReportRawData("one");
    p.Sink(Channel::TCP).ReportRawData("two");
    p.Sink(Channel::FL).ReportRawData("three");
    p.Set("LogTcpData=False");
    p.Sink(Channel::TCP).ReportRawData("four");
    p.Sink(Channel::RF).ReportRawData("five");
    EXPECT_EQ(p.main.monitors.txtTNCData.Text(), "one\r\nfive\r\n");
    EXPECT_EQ(p.main.monitors.txtTCPData.Text(), "two\r\n");
    EXPECT_EQ(p.main.sbStatusBar.PacketLine(), "five");
}

// A log that brought nothing leaves its file, and one that cannot be written costs neither the other nor the exit.
TEST(Monitors, TheLogsOfTheRunAreWrittenAtItsEnd)
{
    for (const bool bFails : {false, true}) {
        TestProgram p;
        p.Set("TNCLog=/logs/tnc TCPLog=/logs/tcp");
        p.files.texts["/logs/tnc"] = p.files.texts["/logs/tcp"] = "before";
        AddTNCData(p.main, "one");
        if (bFails) {
            AddTCPData(p.main, "two");
            p.files.FailWrite(1);
        }
        EXPECT_EQ(StopMainWindow(p.main), bFails ? StopResult::StoppedWithLoss : StopResult::Stopped);
        EXPECT_EQ(p.prompts.messages, std::vector<std::string>(bFails, "Failed to save tnc log to /logs/tnc"));
        EXPECT_EQ(p.files.texts["/logs/tnc"], bFails ? "before" : "one\r\n");
        EXPECT_EQ(p.files.texts["/logs/tcp"], bFails ? "two\r\n" : "before");
    }
}

TEST(Monitors, TheMenuTicksWhatShows)
{
    TestProgram p;
    for (const auto& [entry, form] :
         {std::pair{MenuEntry::mnuViewTncData, Form::frmTnc}, std::pair{MenuEntry::mnuViewTcpData, Form::frmTcpData},
          std::pair{MenuEntry::mnuViewGPSPanel, Form::frmGpsPanel}}) {
        RunMenuEntry(p.main, entry);
        EXPECT_TRUE(StateOf(entry, {p.main, nullptr}).bChecked);
        EXPECT_TRUE(p.dialogs.visible.contains(form));
        p.dialogs.visible.clear(); // Closed by its frame.
        EXPECT_FALSE(StateOf(entry, {p.main, nullptr}).bChecked);
        RunMenuEntry(p.main, entry);
        RunMenuEntry(p.main, entry);
        EXPECT_THAT(p.dialogs.visible, IsEmpty());
    }
}

// A line across the bounds of what is kept in one piece, and a view that reads on from where it was.
TEST(TextLog, KeepsEveryByteAndCanBeReadFromAnywhere)
{
    TextLog log;
    std::string whole;
    std::size_t seen = 0;
    std::string read;
    for (int i = 0; i < 40; ++i) {
        const std::string line(static_cast<std::size_t>(i) * 373, static_cast<char>('a' + i % 26));
        log.AddLine(line);
        whole += line + "\r\n";
        read += log.From(seen);
        seen = log.Size();
    }
    EXPECT_EQ(log.Size(), whole.size());
    EXPECT_TRUE(log.Text() == whole);
    EXPECT_TRUE(read == whole);
    EXPECT_EQ(log.From(seen), "");
}

} // namespace
} // namespace ruvenmark
