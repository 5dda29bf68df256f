#include "messaging/box_commands.h"
#include "messaging/message_boxes.h"
#include "messaging/message_files.h"
#include "messaging/message_fixture.h"

#include <functional>

namespace ruvenmark {
namespace {

using namespace std::string_literals;

constexpr const char *kInbox = "/program/Inbox.txt", *kSent = "/program/Sent.txt";

constexpr const char *kRow = "a#####b#####c#####d#####e#####f", *kOld = "those of the run before";

// A program that starts over these files.
struct Kept : TestProgram {
    Kept(std::initializer_list<std::pair<const char* const, std::string>> stored) : TestProgram(false)
    {
        for (const auto& [path, text] : stored)
            files.texts[path] = text;
    }
    MessageState& Start()
    {
        StartMainWindow(main, AutoConnect::No);
        return main.messages;
    }
    void Hear(std::string_view text)
    {
        Set("Call=N0CALL");
        Sink(Channel::RF).ReportAprsMsg({"W1AW", "APRS", "", "N0CALL", text, ""});
    }
    // Something changes, and what changed is saved.
    void HearAndSave(std::string_view text)
    {
        Hear(text);
        SaveChangedBoxes(main);
    }
    std::string File(const char* path)
    {
        const auto found = files.texts.find(path);
        return found == files.texts.end() ? "(no file)" : found->second;
    }
};

TEST_F(MessageTest, TheBoxesComeBackAsTheyWere)
{
    SendAprsMessage(main, "N0CALL", "W1AW", "", " blanks around ", "3");
    SendAprsMessage(main, "N0CALL", "BLN1", "WIDE1-1", "net", "");
    Hear(Channel::RF, "N0CALL", "hi");
    ASSERT_EQ(StopMainWindow(main), StopResult::Stopped);
    EXPECT_EQ(program.files.texts[kSent],
              "W1AW#####N0CALL##########2026-11-22 20:15:03##### blanks around #####3#####bold\r\n"
              "BLN1#####N0CALL#####WIDE1-1#####2026-11-22 20:15:03#####net##########notbold");
    EXPECT_EQ(program.files.texts[kInbox], "W1AW#####N0CALL#####WIDE2-1#####2026-11-22 20:15:03#####hi#####");

    Kept next({{kSent, program.files.texts[kSent]}, {kInbox, program.files.texts[kInbox]}});
    const MessageState& state = next.Start();
    EXPECT_EQ(RowsOf(state.lvSentList), RowsOf(SentList()));
    EXPECT_EQ(RowsOf(state.lvMessageList), Texts{"W1AW|N0CALL|WIDE2-1|2026-11-22 20:15:03|hi|"}); // Plain.
    EXPECT_EQ(state.lvSentList.At(1).Icon(), RowIcon::None);
    EXPECT_EQ(state.tvMessageBoxes.Find("MessagesSent")->Text(), "Sent Items (2)");
    next.Hear("ack3");
    EXPECT_EQ(state.lvSentList.CountBold(), 0U);
}

// What was not read whole is not touched while nothing changed, and kept aside then; what is empty leaves no file.
TEST(MessageFiles, NothingThatWasNotReadIsLost)
{
    const std::string damaged = kRow + "\r\nshort#####row"s;
    Kept program({{kInbox, damaged}});
    MessageState& state = program.Start();
    EXPECT_EQ(RowsOf(state.lvMessageList), Texts{"a|b|c|d|e|f"});
    SaveChangedBoxes(program.main);
    EXPECT_EQ(program.File(kInbox), damaged);
    state.lvMessageList.Clear();
    state.inbox.bChanged = true;
    EXPECT_EQ(StopMainWindow(program.main), StopResult::Stopped);
    EXPECT_EQ(program.File(kInbox), "(no file)");
    EXPECT_EQ(program.File("/program/Inbox.txt.bak"), damaged);
}

// Written over or removed, the messages of the run before would be gone for good.
TEST(MessageFiles, WhatWasKeptBesideAndCannotBeReadStays)
{
    constexpr const char* kBeside = "/program/Inbox.txt.new";
    for (const bool bBoxReadable : {false, true}) {
        Kept program({{kInbox, kRow}, {kBeside, kOld}});
        program.files.unreadable.insert(kBeside);
        if (!bBoxReadable)
            program.files.unreadable.insert(kInbox);
        MessageState& state = program.Start();
        EXPECT_EQ(program.notices.lines.back(), "/program/Inbox.txt.new could not be read");
        SaveMessageBoxes(program.main); // Nothing came, and nothing may go.
        program.HearAndSave("new");
        EXPECT_FALSE(state.inbox.bChanged);
        EXPECT_EQ(program.File(kBeside), kOld);
        EXPECT_EQ(program.File(kInbox).find("#####new#####") != std::string::npos, bBoxReadable);
        EXPECT_EQ(program.notices.lines.back().ends_with(" and /program/Inbox.txt.new could not be read"),
                  !bBoxReadable);
        if (bBoxReadable)
            continue;
        program.files.texts.erase(kBeside); // The operator has put it elsewhere: what stands there now is our own.
        for (const char* text : {"newer", "newest"}) {
            program.HearAndSave(text);
            EXPECT_NE(program.File(kBeside).find("#####new#####"), std::string::npos);
            EXPECT_NE(program.File(kBeside).find(text), std::string::npos);
        }
        EXPECT_EQ(StopMainWindow(program.main), StopResult::StoppedWithLoss);
    }
}

// What another program, a full disk or a fault of the disk made of it: the rows that can be read come, the file stays
// until something changes, and then a copy of it stays for good.
TEST(MessageFiles, ADamagedBoxComesAsFarAsItGoes)
{
    const std::string row = kRow;
    struct Damage {
        const char* why;
        std::string text;
        std::size_t rows;
        bool bCopied;
    };
    const Damage cases[] = {
        {"bare line feeds", row + "\n" + row + "\n", 2, false},
        {"blank lines", "\r\n" + row + "\r\n\r\n", 1, false},
        {"a NUL", row + "\r\na\0b#####c\r\n"s + row, 2, true},
        {"zeros at the end, as after a power cut", row + "\r\n" + std::string(4096, '\0'), 1, true},
        {"one field more", row + "#####g\r\n" + row, 2, true},
        {"cut off", row + "\r\na#####b#####c", 1, true},
        {"a megabyte in one field", std::string(1'000'000, 'x') + row.substr(1) + "\r\n" + row, 2, false},
        {"a megabyte without fields", row + "\r\n" + std::string(1'000'000, 'x'), 1, true},
        {"no box at all", "\x7f"s + "ELF\x01\r\xff\n\x80", 0, true},
    };
    for (const Damage& damage : cases) {
        Kept program({{kInbox, damage.text}, {"/program/Inbox.txt.bak", "an older one"}});
        MessageState& state = program.Start();
        EXPECT_EQ(state.lvMessageList.Count(), damage.rows) << damage.why;
        EXPECT_EQ(program.notices.lines.size(), damage.bCopied ? 1U : 0U) << damage.why;
        program.HearAndSave("new");
        EXPECT_EQ(program.File("/program/Inbox.txt.bak"), "an older one") << damage.why;
        EXPECT_EQ(program.File("/program/Inbox.txt.bak2"), damage.bCopied ? damage.text : "(no file)") << damage.why;
        const std::string kept = program.File(kInbox);
        Kept next({{kInbox, kept}});
        EXPECT_EQ(RowsOf(next.Start().lvMessageList).size(), damage.rows + 1) << damage.why;
        EXPECT_TRUE(next.notices.lines.empty()) << damage.why;
        SaveChangedBoxes(program.main);
        EXPECT_EQ(program.File("/program/Inbox.txt.bak3"), "(no file)") << damage.why; // One copy is enough.
    }
}

// One full disk costs one box, one line and no more; what changed is tried again.
TEST_F(MessageTest, ChangesAreSavedBetweenTimesOnceEach)
{
    Hear(Channel::RF, "N0CALL", "hi");
    SendAprsMessage(main, "N0CALL", "W1AW", "", "hello", "3");
    program.files.FailWrite(1);
    SaveChangedBoxes(main);
    EXPECT_FALSE(program.files.texts.contains(kInbox));
    EXPECT_TRUE(program.files.texts.contains(kSent));
    EXPECT_EQ(program.notices.lines.size(), 1U);
    SaveChangedBoxes(main);
    EXPECT_TRUE(program.files.texts.contains(kInbox));
    SaveChangedBoxes(main);
    EXPECT_EQ(program.files.writes, 3);
    Hear(Channel::RF, "N0CALL", "ack3");
    SaveChangedBoxes(main);
    EXPECT_TRUE(program.files.texts[kSent].ends_with("#####notbold"));
}

// A load may stand for hours: a message that was acknowledged meanwhile is sent by nobody again. A long file must not
// have the boxes written over and over.
TEST_F(MessageTest, WhileAFileLoadsWhatComesLiveIsSavedAtOnce)
{
    main.links.FileLoading = true;
    const auto isSavedAfter = [&](const std::function<void()>& change) {
        const int before = program.files.writes;
        change();
        SaveChangedBoxes(main);
        const bool bSaved = program.files.writes > before;
        SaveChangedBoxes(main);
        EXPECT_EQ(program.files.writes, before + (bSaved ? 1 : 0));
        return bSaved;
    };
    EXPECT_FALSE(isSavedAfter([&] { Hear(Channel::FL, "N0CALL", "of the file"); }));
    EXPECT_TRUE(isSavedAfter([&] { Hear(Channel::RF, "N0CALL", "hi", "7"); }));
    EXPECT_FALSE(isSavedAfter([&] { Hear(Channel::FL, "N0CALL", "more of the file"); }));
    EXPECT_TRUE(isSavedAfter([&] { SendAprsMessage(main, "N0CALL", "W1AW", "", "hello", "3"); }));
    EXPECT_TRUE(isSavedAfter([&] { Hear(Channel::TCP, "N0CALL", "ack3"); }));
    EXPECT_TRUE(isSavedAfter([&] { SendAprsMessage(main, "N0CALL", "W1AW", "", "again", "4"); }));
    EXPECT_FALSE(isSavedAfter([&] { Hear(Channel::FL, "N0CALL", "ack4"); }));
    mnuViewMessages_Click(main);
    program.prompts.answers = {Answer::Yes};
    mnuMsgDeleteAll_Click(main);
    SaveChangedBoxes(main);
    EXPECT_FALSE(program.files.texts.contains(kInbox));
    main.links.FileLoading = false;
    EXPECT_TRUE(isSavedAfter([] {})); // What the file left to do.
}

// A text off the air can hold anything but line ends.
TEST_F(MessageTest, NoTextCanBreakABox)
{
    for (const char* text : {"a#####b", "##########", "ends with #", "#"})
        Hear(Channel::RF, "N0CALL", text);
    SaveChangedBoxes(main);
    Kept next({{kInbox, program.files.texts[kInbox]}});
    Texts bold = RowsOf(next.Start().lvMessageList);
    for (std::string& row : bold)
        row += '*'; // Of a run before they are read.
    EXPECT_EQ(bold, RowsOf(Inbox()));
}

// A message is new, and counted on the box that shows it, until its list was seen.
TEST_F(MessageTest, AClickOnABoxShowsItsList)
{
    KeyedTree& boxes = main.messages.tvMessageBoxes;
    Hear(Channel::RF, "N0CALL", "hi", "7");
    EXPECT_EQ(RowsOf(Inbox()), Texts{"W1AW|N0CALL|WIDE2-1|2026-11-22 20:15:03|hi|7*"});
    EXPECT_EQ(BoxText("Messages"), "Messages");
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::NewMessage), "New Message");
    mnuViewMessages_Click(main);
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::NewMessage), "");
    EXPECT_EQ(main.window.rightView, RightView::Inbox);
    EXPECT_EQ(main.window.leftTree, LeftTree::Messages);
    EXPECT_TRUE(main.window.bMessagesTicked && !main.window.bMapTicked);
    tvMessageBoxes_NodeClick(main, *boxes.Find("MessagesSent"));
    EXPECT_EQ(main.window.rightView, RightView::Sent);
    boxes.SetExpanded(*boxes.Find("Messages"), false);
    Hear(Channel::RF, "N0CALL", "more");
    EXPECT_EQ(BoxText("Messages"), "Messages (2)");
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::NewMessage), "New Message");
    tvMessageBoxes_NodeClick(main, *boxes.Find("Messages"));
    EXPECT_EQ(main.window.rightView, RightView::Sent);
    tvMessageBoxes_NodeClick(main, *boxes.Find("MessagesInbox"));
    EXPECT_EQ(main.window.rightView, RightView::Inbox);
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::NewMessage), "");
    Hear(Channel::RF, "N0CALL", "seen at once"); // The list is in front.
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::NewMessage), "");
    EXPECT_EQ(Inbox().CountBold(), 3U);
    lvMessageList_LostFocus(main);
    EXPECT_EQ(Inbox().CountBold(), 0U);
    EXPECT_EQ(BoxText("MessagesInbox"), "Inbox");
}

TEST_F(MessageTest, DeletingCountsAnew)
{
    for (const char* text : {"one", "two", "three"})
        Hear(Channel::RF, "N0CALL", text);
    mnuMsgDelete_Click(main); // No list shows.
    mnuViewMessages_Click(main);
    main.messages.lvMessageList.Select(0, true);
    main.messages.lvMessageList.Select(2, true);
    mnuMsgDelete_Click(main); // No.
    EXPECT_EQ(Inbox().Count(), 3U);
    program.prompts.answers = {Answer::Yes};
    mnuMsgDelete_Click(main);
    EXPECT_EQ(Inbox().Count(), 1U);
    EXPECT_EQ(Inbox().At(0).Text(message_column::kText), "two");
    EXPECT_EQ(BoxText("MessagesInbox"), "Inbox (1)");
    lvMessageList_LostFocus(main);
    Hear(Channel::RF, "N0CALL", "four");
    Hear(Channel::RF, "N0CALL", "five");
    main.messages.lvMessageList.Select(2, true);
    program.prompts.answers = {Answer::Yes};
    mnuMsgDelete_Click(main);
    EXPECT_EQ(BoxText("MessagesInbox"), "Inbox (1)"); // One of the two that are left was read.
    SendAprsMessage(main, "N0CALL", "W1AW", "", "hello", "3");
    program.prompts.answers = {Answer::Yes, Answer::Yes};
    mnuMsgDeleteAll_Click(main);
    EXPECT_EQ(BoxText("MessagesInbox"), "Inbox");
    EXPECT_EQ(main.messages.UnreadCount, 0);
    tvMessageBoxes_NodeClick(main, *main.messages.tvMessageBoxes.Find("MessagesSent"));
    mnuMsgDeleteAll_Click(main);
    EXPECT_EQ(BoxText("MessagesSent"), "Sent Items");
    const std::string selected = "Are you sure you want to delete the selected message(s)?";
    EXPECT_EQ(program.prompts.questions,
              (Texts{selected, selected, selected, "Are you sure you want to delete all received messages?",
                     "Are you sure you want to delete all sent messages?"}));
}

TEST_F(MessageTest, AMessageIsOpenedAndAnswered)
{
    Open(false, false, true);
    Hear(Channel::RF, "N0CALL", "hi", "7");
    Take();
    Hear(Channel::RF, "BLN1", "net");
    mnuViewMessages_Click(main);
    Texts captions;
    program.dialogs.onRun[Form::frmOpenMessage] = [&](MainWindow& opened) {
        captions.push_back(opened.frmOpenMessage.caption);
        opened.frmOpenMessage.bReply = captions.size() == 1;
    };
    std::string to;
    program.dialogs.onRun[Form::frmMessage] = [&](MainWindow& opened) {
        to = opened.frmMessage.txtTo;
        opened.frmMessage.roads.chkTCP = true;
        opened.frmMessage.txtMessage = "here";
        EXPECT_EQ(frmMessage_Send(opened.frmMessage), "");
    };
    for (const std::size_t row : {0U, 1U}) {
        main.messages.lvMessageList.Select(row, true);
        mnuMsgOpen_Click(main);
        main.messages.lvMessageList.Select(row, false);
    }
    EXPECT_EQ(captions, (Texts{"Message 7", "Bulletin "}));
    EXPECT_EQ(to, "W1AW");
    EXPECT_EQ(Take(), Texts{"server N0CALL>APRS,TCPIP*::W1AW     :here{1"});
}

// By a marker or by the record; stations of a file are not where the sender is now.
TEST_F(MessageTest, TheSenderIsLocated)
{
    program.Position(Channel::TCP, "N2CALL", 40, -80);
    program.Position(Channel::FL, "N3CALL", 10, 10);
    program.Position(Channel::RF, "N4CALL", 20, 20);
    program.Marker("N4CALL(r)")->Delete();
    for (const char* source : {"N2CALL", "N3CALL", "N4CALL"})
        Hear(Channel::RF, "N0CALL", "hi", "", source);
    for (std::size_t row = 0; row < 3; ++row) {
        mnuViewMessages_Click(main);
        main.messages.lvMessageList.Select(row, true);
        mnuMsgLocate_Click(main);
        main.messages.lvMessageList.Select(row, false);
        EXPECT_EQ(main.window.rightView, row == 1 ? RightView::Inbox : RightView::Map);
    }
    EXPECT_EQ(program.prompts.messages, Texts{"No position report available for station N3CALL"});
    ASSERT_TRUE(program.Marker("N4CALL(r)"));
    EXPECT_EQ(program.Marker("N4CALL(r)")->BalloonState(), 1);
}

} // namespace
} // namespace ruvenmark
