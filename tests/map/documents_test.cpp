#include "map/documents.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

class Documents : public testing::Test {
protected:
    // A map with a change in it.
    void Mark() { program.Position(Channel::RF, "N0CALL", 40, -80); }
    void Run(MenuEntry entry) { RunMenuEntry(program.main, entry); }
    std::string Named() const { return program.main.map.sMainMapFile + ", " + program.main.window.caption; }

    TestProgram program;
};

TEST_F(Documents, SavesUnderANewNameThenUnderTheSameAndOpensWhatWasSaved)
{
    Mark();
    program.prompts.files = {"/a.ptm", "/a.ptm"};
    Run(MenuEntry::mnuFileSave);
    EXPECT_EQ(Named(), "/a.ptm, Ruvenmark - /a.ptm");
    EXPECT_TRUE(program.TheMap().Saved());
    program.Position(Channel::RF, "N1CALL", 41, -80);
    Run(MenuEntry::mnuFileSave);
    EXPECT_EQ(program.prompts.fileTitles, std::vector<std::string>{"Save As"});

    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(Named(), ", Ruvenmark");
    EXPECT_TRUE(program.MarkerNames().empty());
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.MarkerNames(), (std::vector<std::string>{"N0CALL(r)", "N1CALL(r)"}));
    EXPECT_EQ(Named(), "/a.ptm, Ruvenmark - /a.ptm");
    EXPECT_TRUE(program.prompts.questions.empty());
}

TEST_F(Documents, CancelInTheQuestionLeavesEverything)
{
    Mark();
    program.prompts.answers = {Answer::Cancel, Answer::Cancel};
    Run(MenuEntry::mnuFileNew);
    Run(MenuEntry::mnuFileOpen);
    const std::string question = "Do you want to save the current map?";
    EXPECT_EQ(program.prompts.questions, (std::vector<std::string>{question, question}));
    EXPECT_TRUE(program.prompts.fileTitles.empty());
    EXPECT_EQ(program.MarkerNames().size(), 1U);
}

// Else the next command would ask again.
TEST_F(Documents, NoAndACancelledSaveCountAsSaved)
{
    for (const Answer answer : {Answer::No, Answer::Yes}) { // No file is chosen, neither to save nor to open.
        Mark();
        program.prompts.answers = {answer};
        Run(MenuEntry::mnuFileOpen);
        EXPECT_TRUE(program.TheMap().Saved());
        EXPECT_EQ(program.MarkerNames().size(), 1U);
        EXPECT_TRUE(program.files.texts.empty());
        Run(MenuEntry::mnuFileNew);
        EXPECT_TRUE(program.MarkerNames().empty());
    }
    EXPECT_EQ(program.prompts.questions.size(), 2U);
    EXPECT_EQ(program.prompts.fileTitles, (std::vector<std::string>{"Open", "Save As", "Open"}));
}

// Style and font are of the document: changing them is a change, and a new map begins with its own.
TEST_F(Documents, StyleAndFontAreChangesAndStayBehindWithTheirMap)
{
    const auto look = [&] { return std::pair(program.TheMap().MapStyle(), program.TheMap().MapFont()); };
    const auto first = look();
    for (const MenuEntry entry : {MenuEntry::mnuPoliticalMap, MenuEntry::mnuFontSmallest}) {
        program.TheMap().SetSaved(true);
        Run(entry);
        EXPECT_FALSE(program.TheMap().Saved());
    }
    const auto chosen = look();
    program.prompts.files = {"/a.ptm", "/a.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(look(), first);
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(look(), chosen);
}

TEST_F(Documents, WhatCannotBeWrittenOrReadLeavesMapAndName)
{
    Mark();
    program.prompts.files = {"/a.ptm", "/b.ptm", "/broken.ptm"};
    Run(MenuEntry::mnuFileSaveAs);
    program.files.FailWrite(1);
    Run(MenuEntry::mnuFileSaveAs);
    EXPECT_EQ(Named(), "/a.ptm, Ruvenmark - /a.ptm");
    EXPECT_TRUE(program.prompts.messages.empty());

    program.files.texts["/broken.ptm"] = "{\"type\":";
    Run(MenuEntry::mnuFileOpen);
    EXPECT_EQ(program.MarkerNames().size(), 1U);
    EXPECT_EQ(Named(), "/a.ptm, Ruvenmark - /a.ptm");

    program.Position(Channel::RF, "N1CALL", 41, -80); // Changed, and asked ahead of a new map.
    program.prompts.answers = {Answer::Yes};
    program.files.FailWrite(1);
    Run(MenuEntry::mnuFileNew);
    EXPECT_EQ(program.MarkerNames().size(), 2U);
    EXPECT_FALSE(program.TheMap().Saved());
    Run(MenuEntry::mnuFileSaveAs); // Cancelled.
    EXPECT_TRUE(program.TheMap().Saved());
}

TEST_F(Documents, ARegionIsKeptAtOnceAndMakesANewMapOnlyWhereItIsAnother)
{
    Mark();
    Run(MenuEntry::mnuRegionNorthAmerica);
    EXPECT_EQ(program.MarkerNames().size(), 1U);
    program.prompts.answers = {Answer::Cancel, Answer::No};
    Run(MenuEntry::mnuRegionEurope);
    EXPECT_EQ(program.store.Lasting("Region"), "2"); // Even if the program ended here.
    EXPECT_EQ(program.main.mpCtrl.MapRegion(), kRegionNorthAmerica);
    EXPECT_EQ(program.main.map.Region, kRegionNorthAmerica);
    for (const MenuEntry entry : {MenuEntry::mnuRegionEurope, MenuEntry::mnuFileNew}) {
        Run(entry);
        EXPECT_EQ(program.main.mpCtrl.MapRegion(), kRegionEurope);
        EXPECT_TRUE(program.MarkerNames().empty());
    }
    StopMainWindow(program.main);
    EXPECT_EQ(program.store.Get("Region", ""), "2");
}

TEST_F(Documents, PrintsWhatTheDialogGives)
{
    Run(MenuEntry::mnuFilePrint);
    EXPECT_TRUE(program.desktop.prints.empty());
    program.desktop.printChoice = PrintChoice{3, true};
    Run(MenuEntry::mnuFilePrint);
    ASSERT_EQ(program.desktop.prints.size(), 1U);
    EXPECT_EQ(program.desktop.prints[0].copies, 3);
    EXPECT_TRUE(program.desktop.prints[0].bLandscape);
}

} // namespace
} // namespace ruvenmark
